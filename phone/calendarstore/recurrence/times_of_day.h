// The times of day of a recurrence rule: every combination of its hours, minutes and seconds, in order. There
// can be one for every second of a day, so they are counted and looked up, never listed.
#pragma once

#include <array>
#include <bit>
#include <cstdint>

#include "phone/calendarstore/recurrence/calendar_time.h"

namespace phone {

/// A set of hours, of minutes or of seconds, as bits from 0 to 59.
using ClockNumbers = std::uint64_t;

constexpr ClockNumbers clockNumber(Seconds number) { return ClockNumbers{1} << number; }
/// 0 to count - 1.
constexpr ClockNumbers allBelow(int count) { return (ClockNumbers{1} << count) - 1; }

class TimesOfDay {
 public:
  /// None of the three may be empty.
  TimesOfDay(ClockNumbers hours, ClockNumbers minutes, ClockNumbers seconds)
      : hours_(hours), minutes_(minutes), seconds_(seconds) {}

  std::int64_t size() const { return hours_.size() * minutes_.size() * seconds_.size(); }

  /// The index-th time, in seconds since midnight.
  Seconds at(std::int64_t index) const {
    const std::int64_t minute = index / seconds_.size();
    return (hours_[minute / minutes_.size()] * 60 + minutes_[minute % minutes_.size()]) * 60 +
           seconds_[index % seconds_.size()];
  }

  /// The index of the first time that is not before `time`, or size().
  std::int64_t firstFrom(Seconds time) const;

  bool contain(Seconds time) const {
    return hours_.contain(time / 3600) && minutes_.contain(time / 60 % 60) && seconds_.contain(time % 60);
  }

 private:
  class Numbers {
   public:
    explicit Numbers(ClockNumbers numbers) : bits_(numbers) {
      for (; numbers != 0; numbers &= numbers - 1) {
        inOrder_[static_cast<std::size_t>(count_++)] = static_cast<std::uint8_t>(std::countr_zero(numbers));
      }
    }
    std::int64_t size() const { return count_; }
    Seconds operator[](std::int64_t index) const { return inOrder_[static_cast<std::size_t>(index)]; }
    bool contain(Seconds number) const { return (bits_ >> number & 1U) != 0; }

   private:
    ClockNumbers bits_;
    std::array<std::uint8_t, 60> inOrder_{};
    std::int64_t count_ = 0;
  };

  Numbers hours_;
  Numbers minutes_;
  Numbers seconds_;
};

}  // namespace phone
