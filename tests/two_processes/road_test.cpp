// The road of one event between the two processes of a phone: added, shown, hidden in its event view, gone,
// shown again from its editor, back.
#include <algorithm>
#include <gtest/gtest.h>

#include "phone/calendarui/calendar_process.h"
#include "phone/foundation/log_sink.h"
#include "phone/springboard/home_screen.h"
#include "tests/support/built.h"
#include "tests/two_processes/child_process.h"
#include "tests/two_processes/shared_phone.h"

namespace phone::test {
namespace {

/// One load of the lock screen in a home-screen process: the titles that it lists, a line each, and behind
/// them what the plug-in says about hiding.
std::string lockScreen(const SharedPhone& shared) {
  const ChildResult result = runInChild([&] {
    auto homeScreen = HomeScreen::boot(shared.options(), pluginLibrary());
    homeScreen.load();
    std::string lines;
    for (const ListRow& row : homeScreen.rows()) lines += row.title + "\n";
    for (const std::string& line : logLines()) {
      if (line.find("hiding") != std::string::npos) lines += line + "\n";
    }
    return lines;
  });
  EXPECT_TRUE(result.exitedClean) << result.output;
  return result.output;
}

/// Something that its user does in a calendar process.
template <typename Work>
void inCalendar(const SharedPhone& shared, Work work) {
  const ChildResult result = runInChild([&] {
    auto calendar = CalendarProcess::boot(shared.options(), pluginLibrary());
    work(calendar);
    return std::string("done");
  });
  EXPECT_TRUE(result.exitedClean);
  EXPECT_EQ(result.output, "done");
}

class RoadOfAnEvent : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(TwoProcesses, RoadOfAnEvent, testing::Values("7.1", "8.1", "8.4", "9.3"),
                         [](const auto& release) {
                           std::string name = std::string("ios") + release.param;
                           return name.erase(name.find('.'), 1);
                         });

TEST_P(RoadOfAnEvent, leadsThroughBothProcesses) {
  const SharedPhone shared(GetParam());
  const std::string lunch = shared.addEvent("Lunch with Zoë");
  shared.addEvent("Meeting");
  const std::string both = "Lunch with Zoë\nMeeting\n";
  const std::string hidden = "Meeting\nTVM: hiding calendar event 'Lunch with Zoë'\n";
  EXPECT_EQ(lockScreen(shared), both);

  inCalendar(shared,
             [&](CalendarProcess& calendar) { calendar.setSwitch(calendar.openEvent(lunch), kRow, false); });
  EXPECT_EQ(lockScreen(shared), hidden);

  // A cancelled editor writes the switch as a saved one does; this one's user left it off.
  inCalendar(shared, [&](CalendarProcess& calendar) {
    calendar.close(calendar.editEvent(lunch), EditAction::kCancelled);
  });
  EXPECT_EQ(lockScreen(shared), hidden);

  inCalendar(shared, [&](CalendarProcess& calendar) {
    EKEventEditor* const editor = calendar.editEvent(lunch);
    calendar.setSwitch(editor, kRow, true);
    calendar.close(editor, EditAction::kSaved);
  });
  EXPECT_EQ(lockScreen(shared), both);
}

TEST_P(RoadOfAnEvent, endsBeforeTheLockScreenWhenANewEventIsSwitchedOff) {
  const SharedPhone shared(GetParam());
  inCalendar(shared, [](CalendarProcess& calendar) {
    EKEventEditor* const editor = calendar.newEvent();
    calendar.enter(editor, {.title = "Surprise", .start = SharedPhone::kFive});
    calendar.setSwitch(editor, kRow, false);
    calendar.close(editor, EditAction::kSaved);
  });
  EXPECT_EQ(lockScreen(shared), "TVM: hiding calendar event 'Surprise'\n");
}

TEST_P(RoadOfAnEvent, isItsOwnForEachOfTwoOpenEditors) {
  const SharedPhone shared(GetParam());
  const std::string first = shared.addEvent("First");
  const std::string second = shared.addEvent("Second");
  inCalendar(shared, [&](CalendarProcess& calendar) {
    EKEventEditor* const firstEditor = calendar.editEvent(first);
    EKEventEditor* const secondEditor = calendar.editEvent(second);
    calendar.setSwitch(firstEditor, kRow, false);
    calendar.close(secondEditor, EditAction::kCancelled);
    calendar.close(firstEditor, EditAction::kSaved);
  });
  EXPECT_EQ(lockScreen(shared), "Second\nTVM: hiding calendar event 'First'\n");

  // An event view that comes back is the view of its own event, whatever was shown above it.
  inCalendar(shared, [&](CalendarProcess& calendar) {
    calendar.openEvent(second);
    calendar.openEvent(first);
    calendar.goBack();
    calendar.setSwitch(calendar.frontView(), kRow, false);
  });
  EXPECT_EQ(lockScreen(shared), "TVM: hiding calendar event 'First'\nTVM: hiding calendar event 'Second'\n");
}

}  // namespace
}  // namespace phone::test
