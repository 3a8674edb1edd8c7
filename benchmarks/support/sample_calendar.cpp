#include "benchmarks/support/sample_calendar.h"

#include "contract/files.h"
#include "phone/calendarstore/database/event_table.h"
#include "phone/foundation/phone_root.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_mutable_array.h"
#include "platform/foundation/ns_mutable_dictionary.h"
#include "platform/foundation/ns_number.h"

namespace benchmarks {

namespace {

constexpr phone::Seconds kHour = 3600;

}  // namespace

std::string addCalendar(const std::string& name, int inRange, int others) {
  phone::CalendarDatabase database(phone::pathOnThisMachine(phone::kCalendarDatabasePath),
                                   phone::OpenMode::kCreate);
  phone::Transaction transaction(database.connection());
  const phone::CalendarRecord calendar = database.calendarNamed(name, {});
  const std::optional<phone::EventZone> zone = phone::EventZone::utc();
  const std::int64_t zoneRow = database.rowOf(zone);
  const auto now = static_cast<phone::Seconds>(kNow);
  for (phone::Seconds i = 0; i < inRange + others; ++i) {
    const phone::Seconds start =
        i < inRange ? now + i * 60 : now - 30 * phone::kSecondsPerDay - i * 4 * kHour;
    insertEvent(database,
                {.calendar = calendar.id,
                 .uid = name + "-" + std::to_string(i),
                 .title = "Appointment " + std::to_string(i),
                 .location = "Room " + std::to_string(i % 17),
                 .zone = zone,
                 .start = start,
                 .end = start + kHour / 2},
                zoneRow);
  }
  transaction.commit();
  return calendar.identifier;
}

void searchOnly(const std::string& calendar) {
  const AutoreleasePool pool;
  NSMutableDictionary* const settings = NSMutableDictionary::dictionary();
  settings->setObject(NSNumber::numberWithBool(false), "onlySelectedCalendars"_ns);
  settings->writeToFile(constantText<contract::kSettingsFile>(), true);
  NSMutableArray* const identifiers = NSMutableArray::array();
  identifiers->addObject(NSString::stringWithUTF8String(calendar.c_str()));
  identifiers->writeToFile(constantText<contract::kCalendarSelectionFile>(), true);
}

}  // namespace benchmarks
