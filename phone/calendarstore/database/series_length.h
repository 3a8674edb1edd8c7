// How long each occurrence of a series lasts. A length can be partly in days that are counted on the
// calendar: a day that starts at ten ends at ten, also when the clocks change in between.
#pragma once

#include "phone/calendarstore/database/event_record.h"

namespace phone {

struct SeriesLength {
  std::int64_t days = 0;
  Seconds rest = 0;

  static SeriesLength of(const EventRecord& event) {
    // Next to years, an hour is nothing.
    constexpr std::int64_t kMaxCalendarDays = 1000;
    if (!event.zone || event.calendarDays <= 0 || event.calendarDays > kMaxCalendarDays) {
      return {0, event.duration()};
    }
    const SeriesLength days{event.calendarDays, 0};
    const Seconds rest = event.end - days.endAfter(event.start, &*event.zone);
    // Somebody has made the event shorter since.
    if (rest < 0) return {0, event.duration()};
    return {days.days, rest};
  }

  /// As one number, and back. Of a length without calendar days it is the seconds.
  Seconds stored() const { return days * kStoredDay + rest; }
  static SeriesLength fromStored(Seconds stored) { return {stored / kStoredDay, stored % kStoredDay}; }

  /// Where an occurrence ends that starts there, in the event's way of counting. No zone: wall times.
  Seconds endAfter(Seconds start, const EventZone* zone) const {
    if (days == 0) return start + rest;
    const Seconds onCalendar = days * kSecondsPerDay;
    return (zone == nullptr ? start + onCalendar : zone->toInstant(zone->toWall(start) + onCalendar)) + rest;
  }

  /// No occurrence is longer: clocks go back by three hours at most.
  Seconds longest() const { return days == 0 ? rest : days * kSecondsPerDay + 3L * 3600 + rest; }

 private:
  /// More seconds than a file can write down as a length.
  static constexpr Seconds kStoredDay = Seconds{1} << 52;
};

}  // namespace phone
