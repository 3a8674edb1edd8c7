// The item-ordering file and the priority that it gives the plug-in's items.
#include <gtest/gtest.h>

#include "phone/foundation/log_sink.h"
#include "tests/tavimo/support/lock_screen.h"

namespace phone {
namespace {

using Lines = std::vector<std::string>;

std::string list(const std::vector<std::string>& groups) {
  std::string entries;
  for (const std::string& group : groups) entries += "<string>" + group + "</string>";
  return "<array>" + entries + "</array>";
}

TEST(ItemOrdering, PriorityFollowsThePositionsOfTheTwoGroups) {
  LockScreen phone;
  const std::string system = "System Items";
  const struct {
    std::string root;
    NSInteger priority;
    bool isReported = false;
  } rows[] = {
      {list({"Orvessa", system}), 10},
      {list({system, "Orvessa"}), -11},
      {list({"a", "b", "Orvessa", "c", "d", system}), 8},
      {list({"a", "b", system, "c", "Orvessa"}), -14},
      {list({"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "Orvessa", system}), 0},
      {list({"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "Orvessa", system}), -1},
      {list({system, system, "Orvessa", "Orvessa"}), -12},
      {"<array><dict/><integer>1</integer><string>Orvessa</string><string>System Items</string></array>", 8},
      {list({system, "orvessa"}), -100},
      {list({system}), -100},
      {list({"Orvessa"}), -100, true},
      {list({"system items", "Orvessa"}), -100, true},
      {"<array/>", -100, true},
      {"<dict><key>System Items</key><string>Orvessa</string></dict>", -100, true},
      {"<string>System Items</string>", -100, true},
      {"<array><string>Orv", -100, true},
  };
  for (const auto& [root, priority, isReported] : rows) {
    SCOPED_TRACE(root);
    phone.write(kOrdering, root);
    clearLog();
    phone.load();
    EXPECT_EQ(exported<NSInteger>("sortPriority"), priority);
    const Lines expected(isReported ? 1 : 0,
                         "TVM: system sort priority not found, no custom sorting of items will be done!");
    EXPECT_EQ(loggedWith("sort priority"), expected);
  }
}

TEST(ItemOrdering, MissingFileIsReportedAtEveryLoadWhetherEnabledOrNot) {
  LockScreen phone;
  phone.settings("<key>enabled</key><false/>");
  phone.load();
  phone.load();
  EXPECT_EQ(loggedWith("sort priority not found").size(), 2U);
  EXPECT_EQ(exported<NSInteger>("sortPriority"), -100);
}

}  // namespace
}  // namespace phone
