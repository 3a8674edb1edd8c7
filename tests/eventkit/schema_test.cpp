// Databases of other versions of the phone.
#include "phone/calendarstore/database/schema.h"

#include "phone/calendarstore/database/occurrence_query.h"
#include "phone/calendarstore/ics/calendar_import.h"
#include "tests/eventkit/core_fixture.h"

namespace phone {
namespace {

class SchemaTest : public CoreTest {
 protected:
  std::string titles() {
    std::string all;
    for (const EventOccurrence& event :
         occurrencesInRange(database(), {parseTime("2024-01-01 00:00:00"), parseTime("2025-01-01 00:00:00")},
                            {1}, EventZone::utc())
             .occurrences) {
      all += " " + event.title;
    }
    return all;
  }
  /// What the first version of the phone would have left of the database.
  void takeBackToTheFirstVersion() {
    database().connection().execute(
        "DROP TABLE tail; DROP TABLE exception_rule; DROP INDEX event_changing_later;"
        "ALTER TABLE event DROP COLUMN changed_from; PRAGMA user_version = 1");
    database_.reset();
  }
};

TEST_F(SchemaTest, ADatabaseOfAnEarlierVersionIsCompletedAndKeepsItsEvents) {
  const std::string series = eventOf("s", "20240101T100000Z", "s", "RRULE:FREQ=DAILY;COUNT=4\n");
  const std::string file = write("work.ics", calendarOf(series));
  importCalendars(database(), {file});
  takeBackToTheFirstVersion();
  EXPECT_EQ(titles(), " s s s s");
  write("work.ics", calendarOf(series + eventOf("s", "20240103T120000Z", "n",
                                                "RECURRENCE-ID;RANGE=THISANDFUTURE:20240103T100000Z\n")));
  importCalendars(database(), {file});
  EXPECT_EQ(titles(), " s s n n");
  database_.reset();
  EXPECT_EQ(titles(), " s s n n") << "and opens as before";
}

TEST_F(SchemaTest, ADatabaseThatCannotBeUnderstoodIsRefused) {
  database();
  for (const char* const change : {"PRAGMA user_version = 1000", "PRAGMA user_version = -1",
                                   "DROP TABLE event; PRAGMA user_version = 1"}) {
    database().connection().execute(change);
    database_.reset();
    EXPECT_THROW(database(), DatabaseError) << change;
    std::filesystem::remove(folder_ / "Calendar.sqlitedb");
  }
}

}  // namespace
}  // namespace phone
