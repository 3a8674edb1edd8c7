// What a calendar file holds and the phone's calendar has no place for.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace phone {

/// Counts what somebody might miss. What only programs read, such as stamps and identifiers, is not counted.
class IcsLeftOut {
 public:
  /// A component that is neither an event nor a time zone, by its name.
  void countComponent(std::string_view name);
  /// Something of an event: a property, VALARM, or one of the names below. What is kept, or would be missed
  /// by nobody, does not count.
  void countInEvent(std::string_view name);

  /// A rule in a calendar other than the Gregorian one that cannot be followed.
  static constexpr std::string_view kForeignRule = "RSCALE";
  /// A number of occurrences that is too large, or takes too long to find the last one of.
  static constexpr std::string_view kCount = "COUNT";
  /// A change of all repetitions before one, which is taken as a change of that one.
  static constexpr std::string_view kChangeOfEarlier = "THISANDPRIOR";

  void add(const IcsLeftOut& more);

  /// "12 to-dos, 3 journal entries and 1 alarm"; empty if there is nothing.
  std::string text() const;

 private:
  static constexpr std::size_t kKinds = 17;

  std::array<std::size_t, kKinds> counts_{};
};

}  // namespace phone
