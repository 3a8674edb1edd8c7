// A connection to the calendar database.
#pragma once

#include "platform/foundation/ns_object.h"

class EKCalendar;
class EKEvent;
class NSArray;
class NSDate;

class EKEventStore : public NSObject {
 public:
  EKEventStore() = delete;

  /// All event calendars, in the store's order.
  NSArray* calendars() { return objc::send<"calendars", NSArray*>(this); }
  /// Nil when no calendar has that identifier.
  EKCalendar* calendarWithIdentifier(NSString* identifier) {
    return objc::send<"calendarWithIdentifier:", EKCalendar*>(this, identifier);
  }
  /// Nil when there is no calendar.
  EKCalendar* defaultCalendarForNewEvents() {
    return objc::send<"defaultCalendarForNewEvents", EKCalendar*>(this);
  }
  /// The event, or a recurring event's first occurrence (borrowed); nil when there is none.
  EKEvent* eventWithIdentifier(NSString* identifier) {
    return objc::send<"eventWithIdentifier:", EKEvent*>(this, identifier);
  }
  /// Whether later occurrences of a recurring event change with the one that is saved or removed.
  enum Span : NSInteger { kThisEvent = 0, kFutureEvents = 1 };
  /// False when the database refused; `error` is then an NSError (borrowed).
  bool saveEvent(EKEvent* event, Span span, NSObject** error) {
    return objc::send<"saveEvent:span:error:", bool>(this, event, static_cast<NSInteger>(span), error);
  }
  bool removeEvent(EKEvent* event, Span span, NSObject** error) {
    return objc::send<"removeEvent:span:error:", bool>(this, event, static_cast<NSInteger>(span), error);
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
