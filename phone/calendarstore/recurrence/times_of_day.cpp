#include "phone/calendarstore/recurrence/times_of_day.h"

namespace phone {

std::int64_t TimesOfDay::firstFrom(Seconds time) const {
  std::int64_t first = 0;
  std::int64_t end = size();
  while (first < end) {
    const std::int64_t middle = first + (end - first) / 2;
    if (at(middle) < time) {
      first = middle + 1;
    } else {
      end = middle;
    }
  }
  return first;
}

}  // namespace phone
