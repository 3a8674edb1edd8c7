// Calendars of any size, written straight into a phone's database.
#pragma once

#include <filesystem>
#include <string>

namespace benchmarks {

/// 7 March 2026 09:00:00 UTC, in seconds since 2001: the moment that the measurements happen at.
inline constexpr double kNow = 794'566'800;

/// Adds a calendar in which `inRange` events of half an hour start within a day from kNow and all others lie
/// years before, four hours apart. Gives its identifier. Files go below the folder that hostOptions() names.
std::string addCalendar(const std::string& name, int inRange, int others);

/// Makes the calendar of that identifier the only one that the plug-in searches.
void searchOnly(const std::string& calendar);

}  // namespace benchmarks
