// phone export, and back again.
#include <filesystem>
#include <gtest/gtest.h>

#include "tests/app/command.h"
#include "tests/support/built.h"

namespace phone {
namespace {

class ExportVerb : public testing::Test {
 protected:
  ExportVerb() {
    workplace_.output({"create"});
    workplace_.output({"import", (sourceFolder() / "samples").string()});
  }

  std::string events(const std::string& root) {
    return workplace_.output(
        {"event", "list", "--json", "--now", "2014-03-01T00:00", "--days", "60", "--root", root});
  }
  std::string calendars(const std::string& root) {
    return workplace_.output({"calendars", "list", "--json", "--root", root});
  }

  Workplace workplace_;
};

TEST_F(ExportVerb, makesTheSameCalendarsOnAnotherPhone) {
  workplace_.output({"create", "--root", "other"});
  const CommandResult moved = workplace_.shell("phone export | phone import --root other -");
  EXPECT_EQ(moved.exitCode, 0) << moved.errors;
  EXPECT_EQ(moved.errors, "");
  EXPECT_GT(events("phone-root").size(), 10000U);
  EXPECT_EQ(events("other"), events("phone-root"));
  EXPECT_EQ(calendars("other"), calendars("phone-root"));
}

TEST_F(ExportVerb, writesTheCalendarsThatAreNamed) {
  const std::string summary = workplace_.output({"export", "work", "HOME", "Work", "--output", "two.ics"});
  EXPECT_TRUE(summary.starts_with("Work: ")) << summary;
  EXPECT_NE(summary.find("\nHome: "), std::string::npos) << summary;
  const CommandResult names = workplace_.shell("grep -a X-WR-CALNAME two.ics");
  EXPECT_EQ(names.output, "X-WR-CALNAME:Work\r\nX-WR-CALNAME:Home\r\n");
  EXPECT_EQ(workplace_.phone({"export", "Nobody"}).exitCode, 1);
  const CommandResult nowhere = workplace_.phone({"export", "--output", "no/such/folder/a.ics"});
  EXPECT_EQ(nowhere.exitCode, 1);
  EXPECT_NE(nowhere.errors.find("no/such/folder/a.ics"), std::string::npos) << nowhere.errors;
}

}  // namespace
}  // namespace phone
