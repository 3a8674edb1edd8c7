// The store's classes as a calendar app uses them: adding, finding, changing and removing events.
#include <fstream>

#include "phone/calendarstore/ics/calendar_import.h"
#include "phone/foundation/log_sink.h"
#include "tests/eventkit/store_fixture.h"

namespace phone {
namespace {

std::string text(NSString* string) { return string == nullptr ? "(none)" : string->UTF8String(); }

class EventStoreTest : public StoreTest {};

TEST_F(EventStoreTest, APhoneWithoutDatabaseHasNoCalendars) {
  EXPECT_EQ(store_->calendars()->count(), 0u);
  EXPECT_EQ(store_->calendarWithIdentifier("nothing"_ns), nullptr);
  EXPECT_EQ(events(0, at(2100, 1, 1))->count(), 0u);
  EXPECT_EQ(calendarStoreProblem(), "");
  EXPECT_FALSE(std::filesystem::exists(databaseFile())) << "looking must not make a database";
}

TEST_F(EventStoreTest, ANewEventHasNamesOnlyOnceItIsSaved) {
  EKCalendar* const work = addCalendar("Work");
  EKEvent* const event = newEvent(work, "Plan: phase?"_ns, at(2014, 3, 7, 9), at(2014, 3, 7, 10));
  EXPECT_EQ(event->externalURI(), nullptr);
  EXPECT_EQ(event->externalURL(), nullptr);
  EXPECT_EQ(event->persistentEvent(), nullptr);
  EXPECT_FALSE(std::filesystem::is_empty(databaseFile().parent_path()));
  EXPECT_EQ(events(at(2014, 3, 7), at(2014, 3, 8))->count(), 0u);

  ASSERT_TRUE(save(event)) << calendarStoreProblem();
  const std::string identifier = text(event->persistentEvent()->eventIdentifier());
  const std::string address = text(event->externalURI()->absoluteString());
  EXPECT_EQ(address, text(event->externalURL()->absoluteString()));
  const std::string calendar = text(work->calendarIdentifier());
  ASSERT_EQ(identifier.rfind(calendar + ":", 0), 0u);
  EXPECT_EQ(address, "x-apple-calevent://" + calendar + "/" + identifier.substr(calendar.size() + 1) +
                         "?o=" + std::to_string(at(2014, 3, 7, 9)) + ".0");

  EKEvent* const found = withIdentifier(NSString::stringWithUTF8String(identifier.c_str()));
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(text(found->title()), "Plan: phase?");
  EXPECT_EQ(found->location(), nullptr);
  EXPECT_EQ(found->startDate()->timeIntervalSinceReferenceDate(), static_cast<double>(at(2014, 3, 7, 9)));
  EXPECT_EQ(titles(at(2014, 3, 7), at(2014, 3, 8)), " Plan: phase?");
}

TEST_F(EventStoreTest, ASavedEventCanBeChangedAndRemoved) {
  EKCalendar* const work = addCalendar("Work");
  EKCalendar* const home = addCalendar("Home");
  EKEvent* const event = newEvent(work, "Draft"_ns, at(2014, 3, 7, 9), at(2014, 3, 7, 10));
  ASSERT_TRUE(save(event));
  const std::string uri = text(event->externalURI()->absoluteString());

  objc::send<"setTitle:">(event, "Final"_ns);
  objc::send<"setLocation:">(event, "Bern"_ns);
  objc::send<"setAllDay:">(event, true);
  ASSERT_TRUE(save(event));
  // Whole days where the phone is, up to the last second of the day.
  EXPECT_EQ(event->startDate()->timeIntervalSinceReferenceDate(), static_cast<double>(at(2014, 3, 6, 23)));
  EXPECT_EQ(event->endDate()->timeIntervalSinceReferenceDate(),
            static_cast<double>(at(2014, 3, 7, 22, 59, 59)));
  EXPECT_EQ(text(withIdentifier(event->persistentEvent()->eventIdentifier())->location()), "Bern");
  ASSERT_TRUE(save(event)) << "a second save must not move the days";
  EXPECT_EQ(event->startDate()->timeIntervalSinceReferenceDate(), static_cast<double>(at(2014, 3, 6, 23)));

  NSString* const before = event->persistentEvent()->eventIdentifier();
  objc::send<"setCalendar:">(event, home);
  EXPECT_EQ(text(event->persistentEvent()->eventIdentifier()), text(before)) << "nothing is saved yet";
  ASSERT_TRUE(save(event));
  EXPECT_EQ(withIdentifier(before), nullptr);
  EXPECT_NE(text(event->externalURI()->absoluteString()), uri);

  ASSERT_TRUE(remove(event));
  EXPECT_EQ(event->externalURI(), nullptr);
  EXPECT_EQ(events(0, at(2100, 1, 1))->count(), 0u);
  EXPECT_FALSE(remove(event)) << "it is gone";
  EXPECT_NE(calendarStoreProblem(), "");
}

TEST_F(EventStoreTest, WhatASearchLeavesOutIsLogged) {
  const auto file = root_ / "seconds.ics";
  std::ofstream(file)
      << "BEGIN:VCALENDAR\nBEGIN:VEVENT\nUID:1\nDTSTART:20140307T090000Z\nRRULE:FREQ=SECONDLY\n"
         "END:VEVENT\nEND:VCALENDAR\n";
  importCalendars(sharedDatabaseForWriting(), {file});
  clearLog();
  EXPECT_EQ(events(at(2014, 3, 7, 9), at(2014, 3, 7, 9, 10))->count(), 600u);
  EXPECT_EQ(logCount(), 0u);
  EXPECT_EQ(events(at(2014, 3, 7), at(2014, 3, 8))->count(), kMaxOccurrencesOfRule);
  ASSERT_EQ(logCount(), 1u);
  EXPECT_EQ(
      logLines()[0],
      "Calendar: 1 rule repeats more than 1000 times in the time that is searched; later occurrences are "
      "left out");
}

TEST_F(EventStoreTest, UsingAnEventAfterItsStoreEndsTheProcessNamingTheMessage) {
  EKEvent* const saved = newEvent(addCalendar("Work"), "Draft"_ns, at(2014, 3, 7, 9), at(2014, 3, 7, 10));
  ASSERT_TRUE(save(saved));
  EKEvent* const found = withIdentifier(saved->eventIdentifier());
  auto* const listed = static_cast<EKEvent*>(events(at(2014, 3, 7), at(2014, 3, 8))->objectAtIndex(0));
  // The pool keeps the events from here on, and nobody keeps their store.
  store_ = objc::make<EKEventStore>();
  EXPECT_DEATH(saved->title(), "message title: the EKEvent 0x.* its EKEventStore is gone");
  EXPECT_DEATH(found->setAllDay(true), "message setAllDay:: the EKEvent");
  EXPECT_DEATH(listed->externalURL(), "message externalURL: the EKEvent");
  EXPECT_DEATH(save(saved), "message saveEvent:span:error:: the EKEvent");
  EXPECT_DEATH(remove(found), "message removeEvent:span:error:: the EKEvent");
}

TEST_F(EventStoreTest, ASearchOverNoCalendarsFindsNothing) {
  EKCalendar* const work = addCalendar("Work");
  EKCalendar* const home = addCalendar("Home");
  ASSERT_TRUE(save(newEvent(work, "a"_ns, at(2014, 3, 7, 9), at(2014, 3, 7, 10))));
  ASSERT_TRUE(save(newEvent(home, "b"_ns, at(2014, 3, 7, 9), at(2014, 3, 7, 10))));
  EXPECT_EQ(events(0, at(2100, 1, 1), NSArray::array())->count(), 0u);
  auto* const onlyHome =
      objc::sendToClass<NSArray, "arrayWithObject:", NSArray*>(static_cast<NSObject*>(home));
  ASSERT_EQ(events(0, at(2100, 1, 1), onlyHome)->count(), 1u);
  EXPECT_EQ(titles(0, at(2100, 1, 1)), " a b") << "same start: by title";
}

TEST_F(EventStoreTest, ADamagedDatabaseGivesNoEventsAndAReason) {
  std::filesystem::create_directories(databaseFile().parent_path());
  for (const std::string& content :
       {std::string(100'000, '\xa5'), std::string(), std::string("SQLite format 3")}) {
    std::filesystem::remove(databaseFile());
    std::ofstream(databaseFile(), std::ios::binary) << content;
    EXPECT_EQ(store_->calendars()->count(), 0u);
    EXPECT_EQ(events(0, at(2100, 1, 1))->count(), 0u);
    EXPECT_NE(calendarStoreProblem().find("Calendar.sqlitedb"), std::string::npos) << calendarStoreProblem();
  }
}

TEST_F(EventStoreTest, AnEmptyFileIsALostDatabaseAndNoNewOne) {
  std::filesystem::create_directories(databaseFile().parent_path());
  std::ofstream(databaseFile()).close();
  EXPECT_THROW(sharedDatabaseForWriting(), DatabaseError);
  EXPECT_EQ(store_->calendars()->count(), 0u);
  EXPECT_NE(calendarStoreProblem(), "");
  EXPECT_TRUE(std::filesystem::is_empty(databaseFile()));
  std::filesystem::remove(databaseFile());
  EXPECT_EQ(store_->calendars()->count(), 0u);
  EXPECT_EQ(calendarStoreProblem(), "") << "the last look went well";
  EXPECT_NE(firstStoreProblem(), "") << "the first did not";
  addCalendar("Work");
  EXPECT_EQ(store_->calendars()->count(), 1u);
}

TEST_F(EventStoreTest, ASuccessClearsTheProblemOfAnEarlierChange) {
  EKCalendar* const work = addCalendar("Work");
  EKEvent* const unsaved = newEvent(work, "a"_ns, at(2014, 3, 7, 9), at(2014, 3, 7, 10));
  ASSERT_FALSE(remove(unsaved)) << "it was never saved";
  ASSERT_NE(calendarStoreProblem(), "");
  ASSERT_TRUE(save(unsaved));
  EXPECT_EQ(calendarStoreProblem(), "");

  ASSERT_FALSE(remove(newEvent(work, "b"_ns, at(2014, 3, 8, 9), at(2014, 3, 8, 10))));
  ASSERT_NE(calendarStoreProblem(), "");
  EXPECT_EQ(titles(at(2014, 3, 7), at(2014, 3, 8)), " a");
  EXPECT_EQ(calendarStoreProblem(), "") << "a search went well, too";
}

TEST_F(EventStoreTest, TheConnectionIsKeptFromUseToUse) {
  // A temporary table is one connection's own.
  sharedDatabaseForWriting().connection().execute("CREATE TEMP TABLE kept (value INTEGER)");
  sharedDatabase()->connection().execute("INSERT INTO kept VALUES (1)");
  sharedDatabaseForWriting().connection().execute("INSERT INTO kept VALUES (2)");
}

TEST_F(EventStoreTest, WhatAnotherProcessWritesIsSeen) {
  addCalendar("Work");
  {
    CalendarDatabase other(databaseFile(), OpenMode::kExisting);
    other.calendarNamed("From elsewhere", 0x112233ff);
  }
  EXPECT_EQ(store_->calendars()->count(), 2u);
  std::filesystem::remove(databaseFile());
  EXPECT_EQ(store_->calendars()->count(), 0u);
}

}  // namespace
}  // namespace phone
