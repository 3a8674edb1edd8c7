// The screens of the calendar process: what they show, what closing an editor does to the calendar database,
// and what is there again when a screen was left.
#include "phone/calendarui/calendar_process.h"

#include <stdexcept>

#include "phone/calendarstore/ics/calendar_import.h"
#include "phone/eventkit/store_connection.h"
#include "phone/uikit/ui_alert_view.h"
#include "platform/eventkit/ek_calendar.h"
#include "platform/foundation/ns_array.h"
#include "platform/foundation/ns_date.h"
#include "tests/calendarui/calendar_fixture.h"

namespace phone {
namespace {

class CalendarScreens : public CalendarFixture {
 protected:
  static std::string defaultCalendar(const CalendarProcess& calendar) {
    return calendar.store()->defaultCalendarForNewEvents()->title()->UTF8String();
  }
  static std::string defaultCalendarIdentifier(const CalendarProcess& calendar) {
    return calendar.store()->defaultCalendarForNewEvents()->calendarIdentifier()->UTF8String();
  }
};

INSTANTIATE_TEST_SUITE_P(CalendarUI, CalendarScreens, testing::Values("7.1", "8.1", "8.4", "9.3"),
                         releaseName);

TEST_P(CalendarScreens, showAnEventAndItsEditor) {
  auto calendar = boot();
  const std::string event =
      add(calendar, {.title = "Zahnarzt Dr. Müller", .location = "Markt 3", .start = kFive});
  const std::string calendarName = defaultCalendar(calendar);
  EXPECT_EQ(textOf(calendar.screenOf(calendar.openEvent(event))),
            "Zahnarzt Dr. Müller\nMarkt 3\nFriday, Mar 7, 2014\nfrom 17:00 to 18:00\n--\nCalendar = " +
                calendarName + "\nInvitees = None\n--\nAlert = None\nShow As = Busy\n");

  EKEventEditor* const editor = calendar.editFrontEvent();
  const std::string travelTime = GetParam()[0] == '7' ? "" : "Travel Time = None\n";
  EXPECT_EQ(textOf(calendar.screenOf(editor)),
            "Zahnarzt Dr. Müller\nMarkt 3\n--\nAll-day (off)\nStarts = Fri, Mar 7, 2014  17:00\n"
            "Ends = Fri, Mar 7, 2014  18:00\nRepeat = Never\n" +
                travelTime + "--\nCalendar = " + calendarName +
                "\nInvitees = None\n--\nAlert = None\nShow As = Busy\n--\nURL\nNotes\n");
}

TEST_P(CalendarScreens, keepACancelledChangeOutAndTakeASavedOneIn) {
  auto calendar = boot();
  EKEventViewController* const view = calendar.openEvent(add(calendar, {.title = "Dentist", .start = kFive}));
  const std::string before = textOf(calendar.screenOf(view));

  EKEventEditor* cancelled = calendar.editFrontEvent();
  calendar.enter(cancelled, {.title = "Plumber"});
  EXPECT_NE(textOf(calendar.screenOf(cancelled)).find("Plumber\n"), std::string::npos);
  EXPECT_TRUE(calendar.close(cancelled, EditAction::kCancelled));
  EXPECT_EQ(textOf(calendar.screenOf(view)), before);

  EKEventEditor* const saved = calendar.editFrontEvent();
  calendar.setSwitch(saved, "All-day", true);
  // A new start without an end moves the event by a day.
  calendar.enter(saved, {.title = "Holiday", .start = kFive + 86'400});
  EXPECT_TRUE(calendar.close(saved, EditAction::kSaved));
  EXPECT_NE(textOf(calendar.screenOf(view)).find("Holiday\nSaturday, Mar 8, 2014\nall-day\n"),
            std::string::npos)
      << textOf(calendar.screenOf(view));
}

TEST_P(CalendarScreens, openSeveralEditorsAtOnce) {
  auto calendar = boot();
  const std::string first = add(calendar, {.title = "First"});
  const std::string second = add(calendar, {.title = "Second"});
  EKEventEditor* const firstEditor = calendar.editEvent(first);
  EKEventEditor* const secondEditor = calendar.editEvent(second);
  calendar.enter(firstEditor, {.title = "First, changed"});
  calendar.enter(secondEditor, {.title = "Second, changed"});
  EXPECT_TRUE(calendar.close(firstEditor, EditAction::kCancelled));
  EXPECT_TRUE(calendar.close(secondEditor, EditAction::kSaved));
  EXPECT_EQ(calendar.screenOf(calendar.openEvent(first)).groups[0][0].text, "First");
  EXPECT_EQ(calendar.screenOf(calendar.openEvent(second)).groups[0][0].text, "Second, changed");
}

TEST_P(CalendarScreens, comeBackWhenTheOneInFrontIsLeftOrItsEventIsDeleted) {
  auto calendar = boot();
  const std::string first = add(calendar, {.title = "First"});
  const std::string second = add(calendar, {.title = "Second"});
  EKEventViewController* const below = calendar.openEvent(first);
  calendar.openEvent(second);
  calendar.goBack();
  EXPECT_EQ(calendar.frontView(), below);
  EXPECT_EQ(calendar.screenOf(below).groups[0][0].text, "First");

  calendar.openEvent(second);
  EXPECT_TRUE(calendar.close(calendar.editFrontEvent(), EditAction::kDeleted));
  EXPECT_EQ(calendar.frontView(), below);
  EXPECT_THROW(calendar.openEvent(second), std::runtime_error);
  EXPECT_EQ(calendar.frontView(), below) << "An event that is not there must not hide the one in front.";
  calendar.goBack();
  EXPECT_EQ(calendar.frontView(), nullptr);
  EXPECT_THROW(calendar.editFrontEvent(), std::runtime_error);
}

TEST_P(CalendarScreens, goWithTheirEventWhereverItIsDeleted) {
  auto calendar = boot();
  const std::string kept = add(calendar, {.title = "Kept"});
  const std::string deleted = add(calendar, {.title = "Deleted"});
  calendar.openEvent(deleted);
  EKEventViewController* const below = calendar.openEvent(kept);
  calendar.openEvent(deleted);
  EXPECT_TRUE(calendar.close(calendar.editFrontEvent(), EditAction::kDeleted));
  EXPECT_EQ(calendar.frontView(), below);
  EXPECT_TRUE(calendar.close(calendar.editEvent(kept), EditAction::kDeleted));
  EXPECT_EQ(calendar.frontView(), nullptr);
}

/// A calendar file with an event that repeats on five days.
std::string series(const std::string& title) {
  return "BEGIN:VCALENDAR\nVERSION:2.0\nX-WR-CALNAME:Work\nBEGIN:VEVENT\nUID:standup\nSUMMARY:" + title +
         "\nDTSTART;TZID=Europe/Berlin:20140303T090000\nDTEND;TZID=Europe/Berlin:20140303T091500\n"
         "RRULE:FREQ=DAILY;COUNT=5\nEND:VEVENT\nEND:VCALENDAR\n";
}

/// The titles of all events of March 2014.
std::vector<std::string> titlesOf(EKEventStore* store) {
  constexpr double kMarch = 415'324'800.0;
  const auto dateAt = [](double seconds) { return NSDate::dateWithTimeIntervalSinceReferenceDate(seconds); };
  NSArray* const events = store->eventsMatchingPredicate(
      store->predicateForEvents(dateAt(kMarch), dateAt(kMarch + 31 * 86'400.0), store->calendars()));
  std::vector<std::string> titles;
  for (NSUInteger i = 0; i < events->count(); ++i) {
    titles.emplace_back(static_cast<EKEvent*>(events->objectAtIndex(i))->title()->UTF8String());
  }
  return titles;
}

TEST_P(CalendarScreens, treatARepeatingEventAsOne) {
  auto calendar = boot();
  const std::filesystem::path file = folder() / "work.ics";
  writeBytes(file, series("Standup"));
  importCalendars(sharedDatabaseForWriting(), {file});
  const std::string identifier = defaultCalendarIdentifier(calendar) + ":standup";
  EXPECT_NE(textOf(calendar.screenOf(calendar.openEvent(identifier))).find("repeats\n"), std::string::npos);

  // Nothing was edited: no day leaves the series, and what the next import brings is newer.
  EXPECT_TRUE(calendar.close(calendar.editFrontEvent(), EditAction::kSaved));
  EXPECT_EQ(titlesOf(calendar.store()), std::vector<std::string>(5, "Standup"));
  writeBytes(file, series("Stand-up"));
  importCalendars(sharedDatabaseForWriting(), {file});
  EXPECT_EQ(titlesOf(calendar.store()), std::vector<std::string>(5, "Stand-up"));

  EKEventEditor* const editor = calendar.editFrontEvent();
  calendar.enter(editor, {.title = "Coffee"});
  EXPECT_TRUE(calendar.close(editor, EditAction::kSaved));
  EXPECT_EQ(titlesOf(calendar.store()), std::vector<std::string>(5, "Coffee"));
  EXPECT_TRUE(calendar.close(calendar.editFrontEvent(), EditAction::kDeleted));
  EXPECT_TRUE(titlesOf(calendar.store()).empty());
}

TEST_P(CalendarScreens, keepTheEditorOpenWhenTheDatabaseRefuses) {
  auto calendar = boot();
  EKEventEditor* const editor = calendar.newEvent();
  static_cast<EKEvent*>(editor->calendarItem())->setCalendar(nullptr);
  EXPECT_FALSE(calendar.close(editor, EditAction::kSaved));
  ASSERT_EQ(shownAlerts().size(), 1U);
  EXPECT_STREQ(alertState(shownAlerts()[0].get()).title->UTF8String(), "Cannot Change Event");
  EXPECT_STREQ(alertState(shownAlerts()[0].get()).message->UTF8String(), "the event belongs to no calendar");
  EXPECT_FALSE(textOf(calendar.screenOf(editor)).empty());
  EXPECT_TRUE(calendar.close(editor, EditAction::kCancelled));
}

TEST_P(CalendarScreens, refuseWhatTheyCannotDo) {
  auto calendar = boot();
  EKEventEditor* const editor = calendar.newEvent();
  calendar.enter(editor, {.title = "Dentist", .start = kFive});
  const std::string before = textOf(calendar.screenOf(editor));
  EXPECT_THROW(calendar.enter(editor, {.title = "Late", .end = kFive - 1}), std::runtime_error);
  EXPECT_THROW(calendar.enter(editor, {.title = "Lost", .calendar = "No such calendar"}), std::runtime_error);
  EXPECT_THROW(calendar.enter(editor, {.title = "\xFF"}), std::runtime_error);
  EXPECT_THROW(calendar.enter(editor, {.title = "Lost", .location = "caf\xE9"}), std::runtime_error);
  EXPECT_THROW(calendar.setSwitch(editor, "Show on Lockscreen", true), std::runtime_error);
  EXPECT_THROW(writePng(calendar.pictureOf(editor), "/no/such/folder/screen.png"), std::runtime_error);
  calendar.enter(editor, {});
  EXPECT_EQ(textOf(calendar.screenOf(editor)), before) << "A refused change was made in part.";
}

TEST_P(CalendarScreens, areDrawnWithTheirSwitches) {
  auto calendar = boot();
  EKEventEditor* const editor = calendar.newEvent();
  writePng(calendar.pictureOf(editor), picture());
  const std::string off = bytesOf(picture());
  ASSERT_EQ(off.substr(1, 3), "PNG");
  calendar.setSwitch(editor, "All-day", true);
  writePng(calendar.pictureOf(editor), picture());
  EXPECT_NE(bytesOf(picture()), off);
  calendar.setSwitch(editor, "All-day", false);
  writePng(calendar.pictureOf(editor), picture());
  EXPECT_EQ(bytesOf(picture()), off);
}

}  // namespace
}  // namespace phone
