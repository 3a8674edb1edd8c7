// The lists of numbers in libical's recurrence rules.
#pragma once

#include <libical/ical.h>

namespace phone {

template <std::size_t Size>
constexpr bool isEmpty(const short (&list)[Size]) {
  return list[0] == ICAL_RECURRENCE_ARRAY_MAX;
}

/// A list that is full has no end mark.
template <std::size_t Size, typename Use>
void forEachValue(const short (&list)[Size], Use use) {
  for (const short value : list) {
    if (value == ICAL_RECURRENCE_ARRAY_MAX) return;
    use(value);
  }
}

template <std::size_t Size>
constexpr void clear(short (&list)[Size]) {
  list[0] = ICAL_RECURRENCE_ARRAY_MAX;
}

}  // namespace phone
