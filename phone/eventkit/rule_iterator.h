// libical's walk through the occurrences of a rule, in wall times.
#pragma once

#include <optional>

#include "phone/eventkit/ical_owned.h"

namespace phone {

class RuleIterator {
 public:
  /// Walks from `begin` on, which may lie before the start. The rule must not count its occurrences then.
  RuleIterator(const icalrecurrencetype& rule, Seconds wallStart, Seconds begin)
      : iterator_(icalrecur_iterator_new(rule, icalTime(wallStart))) {
    if (iterator_ == nullptr || begin <= wallStart) return;
    if (icalrecur_iterator_set_start(iterator_.get(), icalTime(begin)) == 0) iterator_.reset();
  }

  /// The next occurrence, or none after the last.
  std::optional<Seconds> next() {
    if (iterator_ == nullptr) return std::nullopt;
    const icaltimetype time = icalrecur_iterator_next(iterator_.get());
    if (icaltime_is_null_time(time) != 0) return std::nullopt;
    return wallSeconds(time);
  }

 private:
  OwnedIterator iterator_;
};

}  // namespace phone
