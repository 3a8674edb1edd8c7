// A connection to the calendar database.
#pragma once

#include "platform/foundation/ns_object.h"

class EKCalendar;
class NSArray;
class NSDate;

class EKEventStore : public NSObject {
 public:
  EKEventStore() = delete;

  /// All event calendars, in the store's order.
  NSArray* calendars() { return objc::send<"calendars", NSArray*>(this); }
  /// None when no calendar has that identifier.
  EKCalendar* calendarWithIdentifier(NSString* identifier) {
    return objc::send<"calendarWithIdentifier:", EKCalendar*>(this, identifier);
  }
  NSObject* predicateForEvents(NSDate* start, NSDate* end, NSArray* calendars) {
    return objc::send<"predicateForEventsWithStartDate:endDate:calendars:", NSObject*>(this, start, end,
                                                                                       calendars);
  }
  /// The occurrences that match, in the store's order.
  NSArray* eventsMatchingPredicate(NSObject* predicate) {
    return objc::send<"eventsMatchingPredicate:", NSArray*>(this, predicate);
  }
};
