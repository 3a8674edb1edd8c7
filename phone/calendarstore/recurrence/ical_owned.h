// Ownership, conversion and iteration for libical's C interface.
#pragma once

#include <libical/ical.h>
#include <memory>

#include "phone/calendarstore/recurrence/calendar_time.h"

namespace phone {

struct IcalFree {
  void operator()(icalcomponent* component) const { icalcomponent_free(component); }
  void operator()(icalrecur_iterator* iterator) const { icalrecur_iterator_free(iterator); }
  void operator()(char* text) const { icalmemory_free_buffer(text); }
};

using OwnedComponent = std::unique_ptr<icalcomponent, IcalFree>;
using OwnedIterator = std::unique_ptr<icalrecur_iterator, IcalFree>;
using OwnedIcalText = std::unique_ptr<char, IcalFree>;

/// Uses the component's properties of that kind, borrowed, in order.
template <typename Use>
void forEachProperty(icalcomponent* component, icalproperty_kind kind, Use use) {
  for (icalproperty* property = icalcomponent_get_first_property(component, kind); property != nullptr;
       property = icalcomponent_get_next_property(component, kind)) {
    use(property);
  }
}

/// The wall time of libical's broken-down time; a date is its midnight.
inline Seconds wallSeconds(const icaltimetype& time) {
  if (time.is_date != 0) return wallSeconds(cctz::civil_second(time.year, time.month, time.day));
  return wallSeconds(
      cctz::civil_second(time.year, time.month, time.day, time.hour, time.minute, time.second));
}

/// A wall time, broken down, without a zone.
inline icaltimetype icalTime(Seconds wall) {
  const cctz::civil_second civil = civilTime(wall);
  icaltimetype time = icaltime_null_time();
  time.year = static_cast<int>(civil.year());
  time.month = civil.month();
  time.day = civil.day();
  time.hour = civil.hour();
  time.minute = civil.minute();
  time.second = civil.second();
  return time;
}

}  // namespace phone
