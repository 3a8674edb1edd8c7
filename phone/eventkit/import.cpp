#include "phone/eventkit/import.h"

#include <algorithm>
#include <map>
#include <set>
#include <unordered_set>

#include "phone/eventkit/calendar_color.h"
#include "phone/eventkit/event_merge.h"
#include "phone/eventkit/event_table.h"
#include "phone/eventkit/ics_event.h"
#include "phone/eventkit/ics_scanner.h"
#include "phone/eventkit/ics_zones.h"
#include "phone/eventkit/import_source.h"

namespace phone {

namespace {

constexpr std::size_t kEventsBetweenReports = 500;

/// A calendar that gets events, and the rows of those that it got.
struct Target {
  ImportedCalendar imported;
  std::unordered_set<std::int64_t> seen;
};

class Importer {
 public:
  Importer(CalendarDatabase& database, const ImportOptions& options)
      : database_(database), options_(options) {}

  ImportResult run(const std::vector<std::filesystem::path>& paths) {
    const std::vector<ImportSource> sources = findSources(paths);
    bytesTotal_ = totalSize(sources);
    Transaction transaction = database_.beginChange();
    for (const ImportSource& source : sources) {
      for (const std::filesystem::path& file : source.files) importFile(source, file);
    }
    if (options_.removeMissing) removeMissing();
    transaction.commit();
    for (Target* const target : order_) result_.calendars.push_back(target->imported);
    return std::move(result_);
  }

 private:
  void importFile(const ImportSource& source, const std::filesystem::path& file) {
    IcsScanner scanner(file);
    IcsZones zones(options_.phoneZone);
    struct WaitingEvent {
      IcsComponent component;
      Target* target;
    };
    // Zones may be defined behind the events that use them.
    std::vector<WaitingEvent> waiting;
    Target* target = nullptr;
    std::size_t calendar = 0;
    while (auto component = scanner.next()) {
      if (calendar != scanner.calendarsBegun()) {
        target = &targetFor(source, scanner);
        calendar = scanner.calendarsBegun();
      }
      if (component->kind == IcsComponent::Kind::kZone) {
        zones.define(*component);
        continue;
      }
      // It had a name, and perhaps nothing else.
      if (component->kind == IcsComponent::Kind::kEnd) continue;
      const IcsEvent event = readIcsEvent(file, *component, zones);
      if (event.unknownZone.empty()) {
        merge(*target, event.record);
      } else {
        waiting.push_back({std::move(*component), target});
      }
      if (events_ % kEventsBetweenReports == 0) report(file, bytesBefore_ + scanner.bytesRead());
    }
    zones.endDefinitions();
    std::set<std::string> unknown;
    for (const auto& [component, itsTarget] : waiting) {
      const IcsEvent event = readIcsEvent(file, component, zones);
      if (!event.unknownZone.empty() && unknown.insert(event.unknownZone).second) {
        result_.warnings.push_back(
            IcsError(
                file, component.line,
                "the time zone \"" + event.unknownZone +
                    "\" is neither known nor defined in the file; its times are taken as the phone's own")
                .what());
      }
      merge(*itsTarget, event.record);
    }
    bytesBefore_ += scanner.bytesRead();
    if (bytesBefore_ >= bytesTotal_) report(file, bytesTotal_);
  }

  Target& targetFor(const ImportSource& source, const IcsScanner& scanner) {
    const bool fileDecides = !source.isNamedByUser && !scanner.calendarName().empty();
    const std::string& name = fileDecides ? scanner.calendarName() : source.name;
    const auto [place, isNew] = targets_.try_emplace(name);
    if (isNew) {
      auto color = parseCalendarColor(scanner.calendarColor());
      if (const auto beside = parseCalendarColor(source.color)) color = beside;
      place->second.imported.calendar = database_.calendarNamed(name, color);
      order_.push_back(&place->second);
    }
    return place->second;
  }

  void merge(Target& target, EventRecord event) {
    ImportedCalendar& counts = target.imported;
    event.calendar = counts.calendar.id;
    const MergedEvent merged = mergeEvent(database_, event);
    switch (merged.outcome) {
      case MergeOutcome::kAdded:
        ++counts.added;
        break;
      case MergeOutcome::kUpdated:
        ++counts.updated;
        break;
      case MergeOutcome::kUnchanged:
        ++counts.unchanged;
        break;
      case MergeOutcome::kOlder:
        ++counts.older;
        break;
    }
    if (event.isCancelled) ++counts.cancelled;
    if (options_.removeMissing) target.seen.insert(merged.row);
    ++events_;
  }

  void removeMissing() {
    for (Target* const target : order_) {
      std::vector<std::int64_t> missing;
      Statement& query = database_.prepared("SELECT id FROM event WHERE calendar = ?1 AND imported = 1");
      {
        const StatementScope scope(query);
        for (query.bind(1, target->imported.calendar.id); query.step();) {
          if (!target->seen.contains(query.integer(0))) missing.push_back(query.integer(0));
        }
      }
      for (const std::int64_t row : missing) removeEvent(database_, row);
      target->imported.removed = missing.size();
    }
  }

  void report(const std::filesystem::path& file, std::uint64_t bytesDone) const {
    if (options_.progress) options_.progress({file, std::min(bytesDone, bytesTotal_), bytesTotal_, events_});
  }

  CalendarDatabase& database_;
  const ImportOptions& options_;
  ImportResult result_;
  std::map<std::string, Target> targets_;
  std::vector<Target*> order_;
  std::uint64_t bytesBefore_ = 0;
  std::uint64_t bytesTotal_ = 0;
  std::size_t events_ = 0;
};

}  // namespace

ImportResult importCalendars(CalendarDatabase& database, const std::vector<std::filesystem::path>& paths,
                             const ImportOptions& options) {
  return Importer(database, options).run(paths);
}

}  // namespace phone
