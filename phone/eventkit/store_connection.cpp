#include "phone/eventkit/store_connection.h"

#include <cerrno>
#include <memory>
#include <sys/stat.h>

#include "phone/calendarstore/memory_check.h"
#include "phone/eventkit/eventkit.h"
#include "phone/foundation/phone_root.h"
#include "platform/foundation/ns_string.h"
#include "platform/foundation/ns_time_zone.h"

namespace phone {

namespace {

/// Which file a connection belongs to, by more than its name.
struct FileIdentity {
  std::filesystem::path path;
  dev_t device = 0;
  ino_t inode = 0;

  bool operator==(const FileIdentity&) const = default;
};

struct EventKitState {
  std::unique_ptr<CalendarDatabase> database;
  FileIdentity file;
  std::string problem;
  std::string firstProblem;
  EventZone zone = EventZone::utc();
  std::string zoneName;
};

EventKitState& eventKit() {
  static EventKitState state;
  return state;
}

/// None when there is no such file; a file that may not be looked at has no identity but its name.
std::optional<FileIdentity> identify(const std::filesystem::path& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) == 0) return FileIdentity{path, status.st_dev, status.st_ino};
  if (errno == ENOENT) return std::nullopt;
  return FileIdentity{path};
}

std::string defaultZoneName() {
  NSTimeZone* const zone = NSTimeZone::defaultTimeZone();
  NSString* const name = zone->name();
  return name == nullptr ? "" : name->UTF8String();
}

}  // namespace

CalendarDatabase* sharedDatabase() {
  EventKitState& state = eventKit();
  const auto file = identify(pathOnThisMachine(kCalendarDatabasePath));
  if (!file) {
    state.database.reset();
    return nullptr;
  }
  if (state.database != nullptr && state.file == *file) return state.database.get();
  state.database.reset();
  try {
    state.database = std::make_unique<CalendarDatabase>(file->path, OpenMode::kExisting);
    state.file = *file;
  } catch (const DatabaseError& error) {
    reportStoreProblem(error.what());
  }
  return state.database.get();
}

CalendarDatabase& sharedDatabaseForWriting() {
  EventKitState& state = eventKit();
  const std::filesystem::path path = pathOnThisMachine(kCalendarDatabasePath);
  if (const auto file = identify(path); !file || state.database == nullptr || !(state.file == *file)) {
    state.database.reset();
    state.database = std::make_unique<CalendarDatabase>(path, OpenMode::kCreate);
    state.file = identify(path).value_or(FileIdentity{});
  }
  return *state.database;
}

void readDatabase(const std::function<void(CalendarDatabase&)>& work) {
  if (!withDatabase(work) && !calendarStoreProblem().empty()) throw DatabaseError(calendarStoreProblem());
}

bool withDatabase(const std::function<void(CalendarDatabase&)>& work) {
  eventKit().problem.clear();
  CalendarDatabase* const database = sharedDatabase();
  if (database == nullptr) return false;
  try {
    const MemoryCheck memory;
    const Snapshot snapshot(database->connection());
    work(*database);
    if (memory.wasShort()) throw DatabaseError("there is not enough memory to read the calendar");
    return true;
  } catch (const DatabaseError& error) {
    reportStoreProblem(error.what());
    return false;
  }
}

void reportStoreProblem(const std::string& problem) {
  eventKit().problem = problem;
  if (eventKit().firstProblem.empty()) eventKit().firstProblem = problem;
}

const std::string& firstStoreProblem() { return eventKit().firstProblem; }

const std::string& calendarStoreProblem() { return eventKit().problem; }

const EventZone& phoneZone() {
  EventKitState& state = eventKit();
  std::string name = defaultZoneName();
  if (name != state.zoneName) {
    state.zone = EventZone::named(name).value_or(EventZone::utc());
    state.zoneName = std::move(name);
  }
  return state.zone;
}

}  // namespace phone
