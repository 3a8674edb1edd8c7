// Zones that calendar files define, against the system's zones of the same clocks.
#include <gtest/gtest.h>
#include <string>

#include "phone/calendarstore/recurrence/event_zone.h"

namespace phone {
namespace {

struct Clocks {
  const char* systemName;
  const char* definition;
};

void PrintTo(const Clocks& clocks, std::ostream* out) { *out << clocks.systemName; }

/// The changes that such definitions hold: of rules from before anybody changed clocks, of dates, of rules
/// that end.
constexpr Clocks kClocks[] = {
    {"Europe/Berlin",
     "BEGIN:STANDARD\nDTSTART:16011028T030000\nRRULE:FREQ=YEARLY;BYDAY=-1SU;BYMONTH=10\n"
     "TZOFFSETFROM:+0200\nTZOFFSETTO:+0100\nEND:STANDARD\n"
     "BEGIN:DAYLIGHT\nDTSTART:16010325T020000\nRRULE:FREQ=YEARLY;BYDAY=-1SU;BYMONTH=3\n"
     "TZOFFSETFROM:+0100\nTZOFFSETTO:+0200\nEND:DAYLIGHT\n"},
    {"America/New_York",
     "BEGIN:DAYLIGHT\nDTSTART:19870405T020000\nRRULE:FREQ=YEARLY;BYMONTH=4;BYDAY=1SU;UNTIL=20060402T070000Z\n"
     "TZOFFSETFROM:-0500\nTZOFFSETTO:-0400\nEND:DAYLIGHT\n"
     "BEGIN:STANDARD\nDTSTART:19871025T020000\nRRULE:FREQ=YEARLY;BYMONTH=10;BYDAY=-1SU;COUNT=20\n"
     "TZOFFSETFROM:-0400\nTZOFFSETTO:-0500\nEND:STANDARD\n"
     "BEGIN:DAYLIGHT\nDTSTART:20070311T020000\nRRULE:FREQ=YEARLY;BYMONTH=3;BYDAY=2SU\n"
     "TZOFFSETFROM:-0500\nTZOFFSETTO:-0400\nEND:DAYLIGHT\n"
     "BEGIN:STANDARD\nDTSTART:20071104T020000\nRRULE:FREQ=YEARLY;BYMONTH=11;BYDAY=1SU\n"
     "TZOFFSETFROM:-0400\nTZOFFSETTO:-0500\nEND:STANDARD\n"},
    {"Asia/Tokyo", "BEGIN:STANDARD\nDTSTART:19520101T000000\nTZOFFSETTO:+0900\nEND:STANDARD\n"},
    {"America/Caracas",
     "BEGIN:STANDARD\nDTSTART:19650101T000000\nRDATE:20160501T023000\nTZOFFSETFROM:-0430\nTZOFFSETTO:-0400\n"
     "END:STANDARD\n"
     "BEGIN:STANDARD\nDTSTART:20071209T030000\nTZOFFSETFROM:-0400\nTZOFFSETTO:-0430\nEND:STANDARD\n"},
};

class DefinedZones : public testing::TestWithParam<Clocks> {
 protected:
  void expectSameTimes(int firstYear, int lastYear, Seconds step) const {
    const Seconds end = wallSeconds(cctz::civil_second(lastYear + 1));
    for (Seconds time = wallSeconds(cctz::civil_second(firstYear)); time < end; time += step) {
      ASSERT_EQ(defined_.toWall(time), system_.toWall(time)) << civilTime(time);
      ASSERT_EQ(defined_.toInstant(time), system_.toInstant(time)) << civilTime(time);
    }
  }

  EventZone system_ = *EventZone::named(GetParam().systemName);
  EventZone defined_ = *EventZone::defined(
      "Own", std::string("BEGIN:VTIMEZONE\nTZID:Own\n") + GetParam().definition + "END:VTIMEZONE\n");
};

TEST_P(DefinedZones, HaveTheSystemsTimes) { expectSameTimes(1999, 2045, 1800); }

TEST_P(DefinedZones, HaveThemInFarYearsToo) { expectSameTimes(9990, 9999, 5400); }

TEST_P(DefinedZones, BeginBeforeTheirFirstChange) {
  const Seconds early = wallSeconds(cctz::civil_second(1500));
  EXPECT_EQ(early - defined_.toInstant(early), defined_.toWall(early) - early);
}

INSTANTIATE_TEST_SUITE_P(Systems, DefinedZones, testing::ValuesIn(kClocks));

TEST(DefinedZone, WithoutAChangeIsUtc) {
  for (const char* const part : {"", "BEGIN:STANDARD\nTZOFFSETTO:+0100\nEND:STANDARD\n",
                                 "BEGIN:DAYLIGHT\nDTSTART:20200101T000000\nEND:DAYLIGHT\n"}) {
    const auto zone =
        EventZone::defined("Own", std::string("BEGIN:VTIMEZONE\nTZID:Own\n") + part + "END:VTIMEZONE\n");
    ASSERT_TRUE(zone) << part;
    EXPECT_EQ(zone->toInstant(7), 7) << part;
  }
}

}  // namespace
}  // namespace phone
