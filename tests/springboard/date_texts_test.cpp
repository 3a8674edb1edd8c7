// What the lock screen writes for times, in the user's time zone.
#include "phone/springboard/date_texts.h"

#include <gtest/gtest.h>

#include "phone/bulletinboard/bulletinboard.h"
#include "phone/foundation/foundation.h"
#include "platform/bulletinboard/bb_bulletin.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_string.h"
#include "platform/objc/owned.h"
#include "tests/springboard/phones.h"

namespace phone {
namespace {

constexpr double kMinute = 60;
constexpr double kHour = 60 * kMinute;
constexpr double kDay = 24 * kHour;
/// The midnight before kFridayNoon, which is at 13:40.
constexpr double kMidnight = kFridayNoon - 13 * kHour - 40 * kMinute;

NSDate* at(double seconds) { return NSDate::dateWithTimeIntervalSinceReferenceDate(seconds); }

TEST(DateTexts, tellWhenATimeComesAndHowLongAgoAMessageCame) {
  startFoundation(phoneOf());
  const AutoreleasePool pool;
  registerBulletinBoard();
  const struct {
    const char* text;
    double date;
    double length;
    bool isAllDay;
  } cases[] = {
      {"14:30", kMidnight + 14.5 * kHour, kHour, false},
      {"13:41", kFridayNoon + kMinute, kHour, false},
      {"23:59", kMidnight + kDay - kMinute, kHour, false},
      {"Now", kFridayNoon, kHour, false},
      {"Now", kFridayNoon - 3 * kDay, 5 * kDay, false},
      {"Tomorrow 0:00", kMidnight + kDay, kHour, false},
      {"Sun 9:05", kMidnight + 2 * kDay + 9 * kHour + 5 * kMinute, kHour, false},
      {"Thu 0:00", kMidnight + 6 * kDay, kHour, false},
      {"Mar 14 0:00", kMidnight + 7 * kDay, kHour, false},
      // Summer time begins on 30 March, so this midnight comes an hour earlier.
      {"Apr 1 0:00", kMidnight + 25 * kDay - kHour, kHour, false},
      {"All day", kMidnight, kDay, true},
      {"All day", kMidnight - kDay, 3 * kDay, true},
      {"Tomorrow", kMidnight + kDay, kDay, true},
      {"Sunday", kMidnight + 2 * kDay, kDay, true},
      {"Mar 14", kMidnight + 7 * kDay, kDay, true},
      {"now", kFridayNoon, 0, false},
      {"now", kFridayNoon - kMinute + 1, 0, false},
      {"now", kFridayNoon + kDay, 0, false},
      {"1m ago", kFridayNoon - kMinute, 0, false},
      {"59m ago", kFridayNoon - kHour + 1, 0, false},
      {"1h ago", kFridayNoon - kHour, 0, false},
      {"2d ago", kFridayNoon - 2 * kDay, 0, false},
  };
  for (const auto& expected : cases) {
    auto bulletin = objc::make<BBBulletin>();
    bulletin->setDate(at(expected.date));
    bulletin->setDateIsAllDay(expected.isAllDay);
    if (expected.length > 0) bulletin->setEndDate(at(expected.date + expected.length));
    EXPECT_STREQ(relevanceText(bulletin.get())->UTF8String(), expected.text);
  }
  EXPECT_EQ(relevanceText(objc::make<BBBulletin>().get()), nullptr);
  EXPECT_STREQ(clockText(at(kMidnight + 5 * kMinute))->UTF8String(), "0:05");
  EXPECT_STREQ(todayText(at(kFridayNoon))->UTF8String(), "Friday, March 7");
}

}  // namespace
}  // namespace phone
