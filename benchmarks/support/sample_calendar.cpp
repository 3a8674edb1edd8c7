#include "benchmarks/support/sample_calendar.h"

#include "phone/eventkit/event_table.h"
#include "phone/foundation/phone_root.h"

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

}  // namespace benchmarks
