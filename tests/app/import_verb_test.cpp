// phone import: all or nothing, or what can be read.
#include <fstream>
#include <gtest/gtest.h>

#include "tests/app/command.h"

namespace phone {
namespace {

std::string eventOn(int day, const std::string& start) {
  return "BEGIN:VEVENT\nUID:" + std::to_string(day) + "\nSUMMARY:Day " + std::to_string(day) +
         "\nDTSTART:" + start + "\nBEGIN:VALARM\nEND:VALARM\nEND:VEVENT\n";
}

TEST(ImportVerb, takesWhatCanBeReadWhenItIsAskedTo) {
  const Workplace workplace;
  workplace.output({"create"});
  const auto write = [&workplace](const char* name, const std::string& events) {
    std::ofstream(workplace.folder() / name) << "BEGIN:VCALENDAR\n" + events + "END:VCALENDAR\n";
  };
  write("broken.ics", eventOn(1, "20260307T100000") + eventOn(2, "some day") + eventOn(3, "20260309T100000"));
  write("whole.ics", eventOn(4, "20260310T100000"));

  const CommandResult refused = workplace.phone({"import", "whole.ics", "broken.ics"});
  EXPECT_EQ(refused.exitCode, 1);
  EXPECT_NE(refused.errors.find("broken.ics:12: DTSTART cannot be read"), std::string::npos)
      << refused.errors;
  EXPECT_NE(refused.errors.find("--skip-broken"), std::string::npos) << refused.errors;
  EXPECT_EQ(refused.output, "");
  EXPECT_EQ(workplace.output({"event", "list", "--json", "--now", "2026-03-01"}), "[]\n");

  const CommandResult partly = workplace.phone({"import", "--skip-broken", "whole.ics", "broken.ics"});
  EXPECT_EQ(partly.exitCode, 3);
  EXPECT_EQ(partly.output, "whole: 1 added\nbroken: 2 added\n");
  EXPECT_EQ(partly.errors,
            "warning: whole.ics: left out, for the phone's calendar has no place for it: 1 alarm\n"
            "warning: broken.ics: left out, for the phone's calendar has no place for it: 3 alarms\n"
            "skipped: broken.ics:12: DTSTART cannot be read: some day (event \"Day 2\")\n");
  EXPECT_EQ(workplace.phone({"import", "--skip-broken", "whole.ics"}).exitCode, 0) << "nothing was skipped";
}

}  // namespace
}  // namespace phone
