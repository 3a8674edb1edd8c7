#include "phone/calendarui/event_text.h"

#include <cstdio>

#include "phone/foundation/wall_clock.h"
#include "platform/eventkit/ek_event.h"
#include "platform/foundation/ns_date.h"

namespace phone {

namespace {

std::string timeText(NSDate* date) { return date == nullptr ? "" : clockText(wallClockAt(date)); }

/// "Mar 7, 2014"
std::string dateText(const cctz::civil_second& time) {
  char year[24];
  std::snprintf(year, sizeof year, "%04lld", static_cast<long long>(time.year()));
  return monthName(time).substr(0, 3) + " " + std::to_string(time.day()) + ", " + year;
}

}  // namespace

std::string dayText(NSDate* date) {
  if (date == nullptr) return {};
  const cctz::civil_second time = wallClockAt(date);
  return weekdayName(time) + ", " + dateText(time);
}

std::string momentText(NSDate* date, bool allDay) {
  if (date == nullptr) return {};
  const cctz::civil_second time = wallClockAt(date);
  return weekdayName(time).substr(0, 3) + ", " + dateText(time) + (allDay ? "" : "  " + clockText(time));
}

std::vector<std::string> spanLines(EKEvent* event) {
  const bool allDay = event->isAllDay();
  const std::string firstDay = dayText(event->startDate());
  const std::string lastDay = dayText(event->endDate());
  if (firstDay == lastDay) {
    if (allDay) return {firstDay, "all-day"};
    return {firstDay, "from " + timeText(event->startDate()) + " to " + timeText(event->endDate())};
  }
  if (allDay) return {"all-day from " + firstDay, "to " + lastDay};
  return {"from " + timeText(event->startDate()) + " " + firstDay,
          "to " + timeText(event->endDate()) + " " + lastDay};
}

}  // namespace phone
