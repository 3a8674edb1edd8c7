// A phone with an empty root and the calendar store's classes, for one test.
#pragma once

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

#include "phone/calendarstore/database/calendar_database.h"
#include "phone/eventkit/ek_objects.h"
#include "phone/eventkit/eventkit.h"
#include "phone/eventkit/store_connection.h"
#include "phone/foundation/foundation.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/literal.h"

namespace phone {

class StoreTest : public testing::Test {
 protected:
  explicit StoreTest(const char* timeZone = "Europe/Berlin") {
    char pattern[] = "/tmp/eventkit_test_XXXXXX";
    root_ = ::mkdtemp(pattern);
    startFoundation({.root = root_, .now = 415'843'200.0, .timeZone = timeZone});
    registerEventKit();
    store_ = objc::make<EKEventStore>();
  }
  ~StoreTest() override { std::filesystem::remove_all(root_); }

  std::filesystem::path databaseFile() const {
    return root_ / std::filesystem::path(kCalendarDatabasePath).relative_path();
  }

  /// An instant from a wall time in universal time, such as "20140307T090000".
  static Seconds at(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
    return wallSeconds(cctz::civil_second(year, month, day, hour, minute, second));
  }
  static NSDate* date(Seconds instant) {
    return NSDate::dateWithTimeIntervalSinceReferenceDate(static_cast<double>(instant));
  }

  EKCalendar* addCalendar(const char* title) {
    const CalendarRecord record = sharedDatabaseForWriting().calendarNamed(title, std::nullopt);
    return makeCalendar(record).autorelease();
  }

  EKEvent* newEvent(EKCalendar* calendar, NSString* title, Seconds start, Seconds end) {
    auto* const event = objc::sendToClass<EKEvent, "eventWithEventStore:", EKEvent*>(store_.get());
    objc::send<"setCalendar:">(event, calendar);
    objc::send<"setTitle:">(event, title);
    objc::send<"setStartDate:">(event, date(start));
    objc::send<"setEndDate:">(event, date(end));
    return event;
  }

  bool save(EKEvent* event, NSInteger span = 0) {
    return objc::send<"saveEvent:span:error:", bool>(store_.get(), event, span, static_cast<id*>(nullptr));
  }
  bool remove(EKEvent* event, NSInteger span = 0) {
    return objc::send<"removeEvent:span:error:", bool>(store_.get(), event, span, static_cast<id*>(nullptr));
  }
  EKEvent* withIdentifier(NSString* identifier) {
    return objc::send<"eventWithIdentifier:", EKEvent*>(store_.get(), identifier);
  }
  NSArray* events(Seconds start, Seconds end, NSArray* calendars = nullptr) {
    return store_->eventsMatchingPredicate(store_->predicateForEvents(date(start), date(end), calendars));
  }
  /// The titles of the occurrences in that range, each after a space.
  std::string titles(Seconds start, Seconds end) {
    std::string all;
    NSArray* const found = events(start, end);
    for (NSUInteger i = 0; i < found->count(); ++i) {
      all += std::string(" ") + static_cast<EKEvent*>(found->objectAtIndex(i))->title()->UTF8String();
    }
    return all;
  }

  AutoreleasePool pool_;
  std::filesystem::path root_;
  objc::Owned<EKEventStore> store_;
};

}  // namespace phone
