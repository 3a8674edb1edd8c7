// A calendar file of any size, as a calendar program would export it.
#pragma once

#include <filesystem>

namespace benchmarks {

/// Writes `events` events from 2016 on, one in fifty repeating, in two time zones and with CRLF line ends and
/// folded lines; 280 bytes each. Throws std::runtime_error when the file cannot be written.
void writeCalendarFile(const std::filesystem::path& file, int events);

}  // namespace benchmarks
