// Events that repeat, edited one occurrence at a time or from one occurrence on.
#include "phone/calendarstore/ics/calendar_import.h"
#include "tests/eventkit/store_fixture.h"

namespace phone {
namespace {

class SeriesEditTest : public StoreTest {
 protected:
  /// A series at 9:00 in Berlin on each day of the first week of March 2024, without the third, and with an
  /// event of its own for the fifth.
  SeriesEditTest() {
    const auto file = root_ / "series.ics";
    std::ofstream(file)
        << "BEGIN:VCALENDAR\nBEGIN:VEVENT\nUID:series?1\nDTSTART;TZID=Europe/Berlin:20240301T090000\n"
           "DURATION:PT1H\nRRULE:FREQ=DAILY;COUNT=7\nEXDATE;TZID=Europe/Berlin:20240303T090000\n"
           "SUMMARY:daily\nEND:VEVENT\nBEGIN:VEVENT\nUID:series?1\n"
           "RECURRENCE-ID;TZID=Europe/Berlin:20240305T090000\n"
           "DTSTART;TZID=Europe/Berlin:20240305T150000\nDURATION:PT1H\nSUMMARY:own\n"
           "END:VEVENT\nEND:VCALENDAR\n";
    importCalendars(sharedDatabaseForWriting(), {file});
  }

  EKEvent* occurrence(int day) {
    NSArray* const found = events(at(2024, 3, day), at(2024, 3, day + 1));
    EXPECT_EQ(found->count(), 1u) << "on day " << day;
    return found->count() == 0 ? nullptr : static_cast<EKEvent*>(found->objectAtIndex(0));
  }
  /// Every occurrence as its day, its hour in universal time and its title.
  std::string all() {
    std::string text;
    NSArray* const found = events(at(2024, 1, 1), at(2025, 1, 1));
    for (NSUInteger i = 0; i < found->count(); ++i) {
      auto* const event = static_cast<EKEvent*>(found->objectAtIndex(i));
      const auto start =
          civilTime(static_cast<Seconds>(event->startDate()->timeIntervalSinceReferenceDate()));
      text += " " + std::to_string(start.day()) + "/" + std::to_string(start.hour()) +
              event->title()->UTF8String();
    }
    return text;
  }
  static constexpr NSInteger kThis = 0;
  static constexpr NSInteger kFuture = 1;
};

TEST_F(SeriesEditTest, OccurrencesShareAKeyAndHaveTheirOwnTimes) {
  EXPECT_EQ(all(), " 1/8daily 2/8daily 4/8daily 5/14own 6/8daily 7/8daily");
  EKEvent* const second = occurrence(2);
  EKEvent* const own = occurrence(5);
  const std::string calendar = second->calendar()->calendarIdentifier()->UTF8String();
  const std::string key = "x-apple-calevent://" + calendar + "/series%3F1";
  EXPECT_EQ(second->externalURL()->absoluteString()->UTF8String(),
            key + "?o=" + std::to_string(at(2024, 3, 2, 8)) + ".0");
  EXPECT_EQ(own->externalURL()->absoluteString()->UTF8String(),
            key + "?o=" + std::to_string(at(2024, 3, 5, 14)) + ".0");
  EXPECT_EQ(second->persistentEvent()->eventIdentifier()->UTF8String(), calendar + ":series%3F1");
  EXPECT_EQ(own->persistentEvent()->eventIdentifier()->UTF8String(),
            calendar + ":series%3F1/RID=" + std::to_string(at(2024, 3, 5, 8)));
  for (EKEvent* const event : {second, own}) {
    EKEvent* const found = withIdentifier(event->persistentEvent()->eventIdentifier());
    ASSERT_NE(found, nullptr);
    EXPECT_TRUE(found->title()->isEqualToString(event->title()));
  }
}

TEST_F(SeriesEditTest, OneOccurrenceBecomesAnEventOfItsOwn) {
  EKEvent* const second = occurrence(2);
  objc::send<"setTitle:">(second, "late"_ns);
  objc::send<"setStartDate:">(second, date(at(2024, 3, 2, 20)));
  objc::send<"setEndDate:">(second, date(at(2024, 3, 2, 21)));
  ASSERT_TRUE(save(second, kThis));
  EXPECT_EQ(all(), " 1/8daily 2/20late 4/8daily 5/14own 6/8daily 7/8daily");
  objc::send<"setTitle:">(second, "later"_ns);
  ASSERT_TRUE(save(second, kThis)) << "the same event again";
  EXPECT_EQ(all(), " 1/8daily 2/20later 4/8daily 5/14own 6/8daily 7/8daily");
  ASSERT_TRUE(remove(second));
  EXPECT_EQ(all(), " 1/8daily 4/8daily 5/14own 6/8daily 7/8daily") << "the original does not come back";
}

TEST_F(SeriesEditTest, TheWholeSeriesMovesFromItsFirstOccurrence) {
  EKEvent* const first = occurrence(1);
  objc::send<"setTitle:">(first, "moved"_ns);
  objc::send<"setStartDate:">(first, date(at(2024, 3, 2, 10)));
  objc::send<"setEndDate:">(first, date(at(2024, 3, 2, 10, 30)));
  ASSERT_TRUE(save(first, kFuture));
  EXPECT_EQ(all(), " 2/10moved 3/10moved 5/10moved 5/14own 7/10moved 8/10moved");
}

TEST_F(SeriesEditTest, ASeriesOfDaysCanBeMadeShorter) {
  const auto file = root_ / "days.ics";
  std::ofstream(file)
      << "BEGIN:VCALENDAR\nBEGIN:VEVENT\nUID:days\nDTSTART;TZID=Europe/Berlin:20240603T090000\n"
         "DURATION:P2D\nRRULE:FREQ=WEEKLY;COUNT=2\nSUMMARY:days\nEND:VEVENT\nEND:VCALENDAR\n";
  importCalendars(sharedDatabaseForWriting(), {file});
  const auto lengthFrom = [this](int day) {
    auto* const event =
        static_cast<EKEvent*>(events(at(2024, 6, day), at(2024, 6, day + 1))->objectAtIndex(0));
    return event->endDate()->timeIntervalSinceReferenceDate() -
           event->startDate()->timeIntervalSinceReferenceDate();
  };
  EXPECT_EQ(lengthFrom(10), 2 * 86'400);
  auto* const first = static_cast<EKEvent*>(events(at(2024, 6, 3), at(2024, 6, 4))->objectAtIndex(0));
  objc::send<"setEndDate:">(first, date(at(2024, 6, 3, 8)));
  ASSERT_TRUE(save(first, kFuture));
  EXPECT_EQ(lengthFrom(3), 3600);
  EXPECT_EQ(lengthFrom(10), 3600);
}

TEST_F(SeriesEditTest, TheRestOfASeriesBecomesASeriesOfItsOwn) {
  EKEvent* const fourth = occurrence(4);
  const std::string before = fourth->persistentEvent()->eventIdentifier()->UTF8String();
  objc::send<"setTitle:">(fourth, "new"_ns);
  objc::send<"setStartDate:">(fourth, date(at(2024, 3, 4, 9)));
  objc::send<"setEndDate:">(fourth, date(at(2024, 3, 4, 10)));
  ASSERT_TRUE(save(fourth, kFuture));
  EXPECT_EQ(all(), " 1/8daily 2/8daily 4/9new 5/14own 6/9new 7/9new");
  EXPECT_NE(fourth->persistentEvent()->eventIdentifier()->UTF8String(), before);
}

TEST_F(SeriesEditTest, OccurrencesAreRemovedOneByOneOrFromOneOn) {
  ASSERT_TRUE(remove(occurrence(1), kThis));
  EXPECT_EQ(all(), " 2/8daily 4/8daily 5/14own 6/8daily 7/8daily");
  ASSERT_TRUE(remove(occurrence(4), kFuture));
  EXPECT_EQ(all(), " 2/8daily");
  ASSERT_TRUE(remove(occurrence(2), kThis));
  EXPECT_EQ(all(), "");
}

TEST_F(SeriesEditTest, ASeriesCanBecomeAllDayAndMoveToAnotherCalendar) {
  EKEvent* const first = occurrence(1);
  objc::send<"setAllDay:">(first, true);
  objc::send<"setCalendar:">(first, addCalendar("Other"));
  ASSERT_TRUE(save(first, kFuture));
  // Whole days in Berlin begin at 23:00 of the day before in universal time.
  EXPECT_EQ(all(), " 29/23daily 1/23daily 3/23daily 5/14own 5/23daily 6/23daily");
  NSArray* const own = events(at(2024, 3, 5, 14), at(2024, 3, 5, 15));
  ASSERT_EQ(own->count(), 1u);
  EXPECT_TRUE(static_cast<EKEvent*>(own->objectAtIndex(0))->calendar()->isEqual(first->calendar()));
}

}  // namespace
}  // namespace phone
