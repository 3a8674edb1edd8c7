#include "benchmarks/support/calendar_file.h"

#include <array>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <stdexcept>
#include <string>

namespace benchmarks {

namespace {

constexpr int kRepeatingShare = 50;
/// 1 January 2016, in seconds since 1970, and the distance of two events.
constexpr std::time_t kFirstStart = 1'451'606'400;
constexpr std::time_t kBetweenStarts = 5400;

constexpr const char* kZone =
    "BEGIN:VTIMEZONE\r\nTZID:Europe/Berlin\r\n"
    "BEGIN:STANDARD\r\nTZOFFSETFROM:+0200\r\nTZOFFSETTO:+0100\r\nTZNAME:CET\r\nDTSTART:19701025T030000\r\n"
    "RRULE:FREQ=YEARLY;BYMONTH=10;BYDAY=-1SU\r\nEND:STANDARD\r\n"
    "BEGIN:DAYLIGHT\r\nTZOFFSETFROM:+0100\r\nTZOFFSETTO:+0200\r\nTZNAME:CEST\r\nDTSTART:19700329T020000\r\n"
    "RRULE:FREQ=YEARLY;BYMONTH=3;BYDAY=-1SU\r\nEND:DAYLIGHT\r\nEND:VTIMEZONE\r\n";

std::string timeText(std::time_t time) {
  std::tm parts{};
  gmtime_r(&time, &parts);
  std::array<char, 32> text{};
  std::strftime(text.data(), text.size(), "%Y%m%dT%H%M%S", &parts);
  return text.data();
}

std::string eventText(int index) {
  constexpr std::array kRules = {"FREQ=WEEKLY;COUNT=20", "FREQ=MONTHLY;BYDAY=2TU;COUNT=12",
                                 "FREQ=DAILY;INTERVAL=3;COUNT=30"};
  const std::time_t start = kFirstStart + index * kBetweenStarts;
  const bool isLocal = index % 2 == 0;
  const std::string zone = isLocal ? ";TZID=Europe/Berlin:" : ":";
  const std::string mark = isLocal ? "" : "Z";
  const std::string number = std::to_string(index);
  std::string text =
      "BEGIN:VEVENT\r\nUID:event-" + number + "@calendar.example\r\nDTSTAMP:20160101T000000Z\r\n" +
      "DTSTART" + zone + timeText(start) + mark + "\r\nDTEND" + zone + timeText(start + 1800) + mark +
      "\r\nSUMMARY:Appointment number " + number + " with the team of the third\r\n  floor\r\n" +
      "LOCATION:Room " + std::to_string(index % 40) + "\\, second building on the left\r\n";
  if (index % kRepeatingShare == 0) {
    text += std::string("RRULE:") +
            kRules[static_cast<std::size_t>(index / kRepeatingShare) % kRules.size()] + "\r\n";
  }
  return text + "STATUS:CONFIRMED\r\nX-MADE-BY:export\r\nEND:VEVENT\r\n";
}

}  // namespace

void writeCalendarFile(const std::filesystem::path& file, int events) {
  std::ofstream out(file, std::ios::binary);
  out << "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//calendar.example//EN\r\nX-WR-CALNAME:Archive\r\n"
      << kZone;
  for (int i = 0; i < events; ++i) out << eventText(i);
  out << "END:VCALENDAR\r\n";
  if (!out.flush()) throw std::runtime_error("cannot write " + file.string());
}

}  // namespace benchmarks
