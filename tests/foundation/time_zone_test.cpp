// Time zones: which one counts, and calendar arithmetic on the days when clocks are moved.
#include <gtest/gtest.h>
#include <stdexcept>
#include <stdlib.h>

#include "phone/foundation/foundation.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/ns_calendar.h"
#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_date_components.h"
#include "platform/foundation/ns_string.h"
#include "platform/objc/owned.h"

namespace phone {
namespace {

std::string failureOf(const HostOptions& options) {
  try {
    startFoundation(options);
  } catch (const std::invalid_argument& error) {
    return error.what();
  }
  return "no failure";
}

std::string defaultZone() {
  return objc::send<"name", NSString*>(objc::sendToClass<"NSTimeZone", "defaultTimeZone", id>())
      ->UTF8String();
}

TEST(TimeZone, OptionComesBeforeVariableBeforeSystem) {
  const AutoreleasePool pool;
  unsetenv("TZ");
  startFoundation({.root = "/phone"});
  const std::string system = defaultZone();
  setenv("TZ", "Asia/Tokyo", 1);
  startFoundation({.root = "/phone"});
  EXPECT_EQ(defaultZone(), "Asia/Tokyo");
  setenv("TZ", ":America/New_York", 1);
  startFoundation({.root = "/phone"});
  EXPECT_EQ(defaultZone(), "America/New_York");
  startFoundation({.root = "/phone", .timeZone = "Europe/Berlin"});
  EXPECT_EQ(defaultZone(), "Europe/Berlin");
  setenv("TZ", "", 1);
  startFoundation({.root = "/phone"});
  EXPECT_EQ(defaultZone(), system);
}

TEST(TimeZone, UnknownNamesAreRefusedAndNamed) {
  const AutoreleasePool pool;
  unsetenv("TZ");
  for (const char* const name :
       {"Europe/berlin", "Nowhere", "Europe", "/etc/localtime", "../../../etc/hostname", "\xFF"}) {
    EXPECT_EQ(failureOf({.root = "/phone", .timeZone = name}),
              "unknown time zone \"" + std::string(name) + "\": use a name such as Europe/Berlin");
  }
  setenv("TZ", "CET-1CEST", 1);
  EXPECT_EQ(
      failureOf({.root = "/phone"}),
      "the variable TZ names an unknown time zone \"CET-1CEST\": set it to a name such as Europe/Berlin, or "
      "give the zone with --timezone");
  EXPECT_EQ(failureOf({.root = "/phone", .timeZone = "Europe/Berlin"}), "no failure");
}

class Berlin : public testing::Test {
 protected:
  Berlin() { startFoundation({.root = "/phone", .timeZone = "Europe/Berlin"}); }

  static NSDateComponents* components() { return objc::make<NSDateComponents>().autorelease(); }
  static NSDate* at(NSInteger month, NSInteger day, NSInteger hour, NSInteger minute = 0,
                    NSInteger second = 0) {
    NSDateComponents* const parts = components();
    parts->setYear(2014);
    objc::send<"setMonth:">(parts, month);
    parts->setDay(day);
    parts->setHour(hour);
    parts->setMinute(minute);
    parts->setSecond(second);
    return NSCalendar::currentCalendar()->dateFromComponents(parts);
  }
  static NSDate* daysLater(NSDate* date, NSInteger days) {
    NSDateComponents* const parts = components();
    parts->setDay(days);
    return NSCalendar::currentCalendar()->dateByAddingComponents(parts, date, 0);
  }
  static double hoursBetween(NSDate* from, NSDate* to) {
    return (to->timeIntervalSinceReferenceDate() - from->timeIntervalSinceReferenceDate()) / 3600;
  }

 private:
  AutoreleasePool pool_;
};

TEST_F(Berlin, DaysWithSwitchedClocksAreAnHourShorterOrLonger) {
  // 7 March 2014, 10:00 in Berlin is 9:00 in Greenwich.
  EXPECT_EQ(at(3, 7, 10)->timeIntervalSinceReferenceDate(), 415875600.0);
  for (const auto& [month, day, hours] :
       {std::tuple(3, 29, 24.0), std::tuple(3, 30, 23.0), std::tuple(3, 31, 24.0), std::tuple(10, 25, 24.0),
        std::tuple(10, 26, 25.0)}) {
    NSDate* const midnight = at(month, day, 0);
    EXPECT_EQ(hoursBetween(midnight, daysLater(midnight, 1)), hours) << month << '/' << day;
    EXPECT_EQ(hoursBetween(midnight, at(month, day, 23, 59, 59)), hours - 1.0 / 3600) << month << '/' << day;
  }
}

TEST_F(Berlin, DaysAddedAcrossASwitchKeepTheTimeOfDay) {
  for (const auto& [month, day] : {std::pair(3, 29), std::pair(10, 25)}) {
    NSDate* const later = daysLater(at(month, day, 14, 30), 2);
    NSDateComponents* const parts = NSCalendar::currentCalendar()->components(
        NSCalendar::kDay | NSCalendar::kHour | NSCalendar::kMinute, later);
    EXPECT_EQ((objc::send<"hour", NSInteger>(parts)), 14);
    EXPECT_EQ((objc::send<"minute", NSInteger>(parts)), 30);
  }
}

}  // namespace
}  // namespace phone
