// The editor's list, as plug-ins find it: built once, kept in the editor's instance variables, in the places
// that each release gives its fields.
#include "phone/calendarui/ek_event_edit_view_controller.h"
#include "platform/calendarui/ek_event_editor.h"
#include "platform/foundation/ns_mutable_array.h"
#include "platform/objc/class_of.h"
#include "platform/objc/ivar.h"
#include "tests/calendarui/calendar_fixture.h"

namespace phone {
namespace {

class EditItems : public CalendarFixture {};

INSTANTIATE_TEST_SUITE_P(CalendarUI, EditItems, testing::Values("7.1", "8.1", "8.4", "9.3"), releaseName);

TEST_P(EditItems, areBuiltOnceAndKeptWithTheAlertBeforeThePlugInsPlace) {
  auto calendar = boot();
  const bool isIos7 = GetParam()[0] == '7';
  auto frame =
      makeEditViewController(EKEvent::eventWithEventStore(calendar.store()), calendar.store(), nullptr);
  EKEventEditor* const editor = frame->editor();
  EXPECT_EQ(objc::readIvar<NSArray>(editor, "_editItems"), nullptr);

  auto* const items = objc::send<"_editItems", NSArray*>(editor);
  ASSERT_NE(items, nullptr);
  EXPECT_EQ(objc::readIvar<NSArray>(editor, "_editItems"), items);
  EXPECT_EQ((objc::send<"_editItems", NSArray*>(editor)), items);
  const NSUInteger alert = isIos7 ? 6 : 7;
  ASSERT_GT(items->count(), alert + 1);
  EXPECT_TRUE(objc::isOfClass(items->objectAtIndex(alert), "EKEventAlarmEditItem"));

  auto* const groups = objc::readIvar<NSArray>(editor, "_orderedEditItems");
  if (isIos7) {
    EXPECT_EQ(groups, nullptr);
    EXPECT_EQ(objc::objectIvar<NSArray>(editor, "_orderedEditItems"), nullptr);
    return;
  }
  ASSERT_GE(groups->count(), 4U);
  EXPECT_EQ(static_cast<NSArray*>(groups->objectAtIndex(3))->objectAtIndex(0), items->objectAtIndex(alert));
}

TEST_P(EditItems, followAnIvarThatAPlugInChanged) {
  auto calendar = boot();
  EKEventEditor* const editor = calendar.newEvent();
  const std::string before = textOf(calendar.screenOf(editor));
  // What a plug-in does to take the last group away.
  if (GetParam()[0] == '7') {
    auto* const items = static_cast<NSMutableArray*>(objc::send<"_editItems", NSArray*>(editor));
    const NSUInteger count = items->count();
    items->removeObjectAtIndex(count - 1);
    items->removeObjectAtIndex(count - 2);
  } else {
    auto* const groups = objc::readIvar<NSMutableArray>(editor, "_orderedEditItems");
    groups->removeObjectAtIndex(groups->count() - 1);
  }
  calendar.enter(editor, {});
  EXPECT_EQ(textOf(calendar.screenOf(editor)) + "--\nURL\nNotes\n", before);
}

TEST_P(EditItems, tellANewEventByTheScreenAroundTheEditor) {
  auto calendar = boot();
  EKEventEditor* const added = calendar.newEvent();
  EXPECT_TRUE(
      objc::isOfClass(added->parentViewController()->parentViewController(), "AddEventViewController"));
  EXPECT_EQ(calendar.screenOf(added).bar.title, "New Event");

  EKEventEditor* const edited = calendar.editEvent(add(calendar, {.title = "Dentist"}));
  EXPECT_NE(edited->parentViewController(), nullptr);
  EXPECT_EQ(edited->parentViewController()->parentViewController(), nullptr);
  EXPECT_EQ(calendar.screenOf(edited).bar.deleteButton, "Delete Event");
}

}  // namespace
}  // namespace phone
