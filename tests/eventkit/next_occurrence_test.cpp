// Which occurrence of an event is the next one, wherever "now" stands.
#include "phone/calendarstore/database/next_occurrence.h"

#include "phone/calendarstore/database/event_lookup.h"
#include "phone/calendarstore/ics/calendar_import.h"
#include "tests/eventkit/core_fixture.h"

namespace phone {
namespace {

class NextOccurrence : public CoreTest {
 protected:
  NextOccurrence() {
    importCalendars(
        database(),
        {write(
            "calendar.ics",
            calendarOf(
                eventOf("once", "20240501T100000Z", "Once") +
                eventOf("weekly", "20240506T080000Z", "Weekly",
                        "RRULE:FREQ=WEEKLY;COUNT=4\nEXDATE:20240520T080000Z\n") +
                eventOf("weekly", "20240514T120000Z", "Moved", "RECURRENCE-ID:20240513T080000Z\n") +
                eventOf("leap", "20240229T080000Z", "Leap", "RRULE:FREQ=YEARLY\n") +
                eventOf("seconds", "20240601T080000Z", "Seconds",
                        "RRULE:FREQ=SECONDLY;UNTIL=20240603T080000Z\n") +
                eventOf("dates", "20240701T080000Z", "Dates", "RDATE:20240801T080000Z,20240901T080000Z\n") +
                eventOf("gone", "20240701T080000Z", "Gone",
                        "RRULE:FREQ=DAILY;COUNT=2\nEXDATE:20240701T080000Z\nEXDATE:20240702T080000Z\n")))});
  }

  std::string nextOf(const std::string& uid, const std::string& now) {
    const EventZone utc = EventZone::utc();
    const auto named = eventsNamed(database(), uid, utc);
    const auto first = findByIdentifier(database(), named.at(0).identifier, utc);
    const EventOccurrence next = nextOccurrence(database(), first->event, parseTime(now), utc);
    return showTime(next.start) + " " + next.title;
  }
};

TEST_F(NextOccurrence, isTheFirstThatIsNotOverOrElseTheLast) {
  struct Case {
    const char* uid;
    const char* now;
    const char* next;
  };
  const Case cases[] = {
      {"once", "2020-01-01 00:00:00", "2024-05-01 10:00:00 Once"},
      {"once", "2030-01-01 00:00:00", "2024-05-01 10:00:00 Once"},
      {"weekly", "1999-01-01 00:00:00", "2024-05-06 08:00:00 Weekly"},
      {"weekly", "2024-05-06 08:59:59", "2024-05-06 08:00:00 Weekly"},
      {"weekly", "2024-05-06 09:00:00", "2024-05-14 12:00:00 Moved"},
      {"weekly", "2024-05-14 13:00:00", "2024-05-27 08:00:00 Weekly"},
      {"weekly", "2031-01-01 00:00:00", "2024-05-27 08:00:00 Weekly"},
      {"leap", "2096-03-01 00:00:00", "2104-02-29 08:00:00 Leap"},
      {"seconds", "2024-06-02 00:00:00", "2024-06-01 23:00:01 Seconds"},
      {"dates", "2024-07-15 00:00:00", "2024-08-01 08:00:00 Dates"},
      {"dates", "2025-01-01 00:00:00", "2024-09-01 08:00:00 Dates"},
      {"gone", "2024-06-01 00:00:00", "2024-07-01 08:00:00 Gone"},
      {"weekly", "0001-01-01 00:00:00", "2024-05-06 08:00:00 Weekly"},
      {"weekly", "9999-12-31 23:59:59", "2024-05-27 08:00:00 Weekly"},
  };
  for (const Case& each : cases) EXPECT_EQ(nextOf(each.uid, each.now), each.next) << each.now;
}

}  // namespace
}  // namespace phone
