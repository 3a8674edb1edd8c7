// The calendar store's framework: its classes, and the one connection behind all stores of a process.
#pragma once

#include <string>

namespace phone {

/// Registers EKEventStore, EKCalendar, EKEvent and their kin. startFoundation() must have run.
void registerEventKit();

/// Why the last use of a calendar store gave nothing or failed, in words for people; empty when it went well.
/// A phone without a calendar database has no calendars; that is no failure.
const std::string& calendarStoreProblem();

}  // namespace phone
