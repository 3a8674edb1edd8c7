// How the store's objects carry what they show, and how the store makes them.
#pragma once

#include <memory>

#include "phone/calendarstore/database/calendar_database.h"
#include "phone/calendarstore/database/occurrence_query.h"
#include "phone/objc/class_definition.h"
#include "platform/eventkit/ek_calendar.h"
#include "platform/eventkit/ek_event.h"
#include "platform/eventkit/ek_event_store.h"
#include "platform/eventkit/ek_persistent_event.h"
#include "platform/foundation/ns_array.h"
#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_string.h"
#include "platform/foundation/ns_url.h"
#include "platform/uikit/ui_color.h"

namespace phone {

struct CalendarState {
  CalendarRecord record;
  objc::Owned<NSString> identifier;
  objc::Owned<NSString> title;
  objc::Owned<UIColor> color;
};

/// Whether a store still lives. The store alone holds it; what came from the store looks at it.
using StoreLife = std::shared_ptr<const void>;

struct EventStoreState {
  StoreLife life = std::make_shared<char>();
};

struct CalendarItemState {
  StoreLife::weak_type store;
  objc::Owned<NSString> title;
  objc::Owned<NSString> location;
  objc::Owned<EKCalendar> calendar;
  /// The stored occurrence behind the item, and the calendar that it is stored in; none for a new event that
  /// was never saved.
  std::optional<EventOccurrence> stored;
  std::string storedCalendar;
  /// Made when first asked for.
  objc::Owned<NSString> identifier;
  objc::Owned<NSURL> address;
};

struct EventState {
  objc::Owned<NSDate> startDate;
  objc::Owned<NSDate> endDate;
  objc::Owned<EKPersistentEvent> persistentEvent;
  bool isAllDay = false;
};

struct PersistentEventState {
  objc::Owned<NSString> identifier;
};

ClassDefinition ekCalendar();
ClassDefinition ekCalendarItem();
ClassDefinition ekEvent();
ClassDefinition ekEventPredicate();
ClassDefinition ekEventStore();
ClassDefinition ekPersistentEvent();

/// A text from the database. Never nil: what is no UTF-8 reads as an empty text.
objc::Owned<NSString> makeString(const std::string& text);

objc::Owned<EKCalendar> makeCalendar(const CalendarRecord& record);

/// An event of that store that shows the occurrence. It must not be used once the store is gone.
objc::Owned<EKEvent> makeEvent(EKEventStore* store, const EventOccurrence& occurrence, EKCalendar* calendar);

/// Makes the event show that occurrence, as after a save.
void showOccurrence(EKEvent* event, const EventOccurrence& occurrence, EKCalendar* calendar);

/// Makes the event one that was never saved, as after it was removed.
void forgetOccurrence(EKEvent* event);

/// The text of the item's identifier (borrowed), or nil for an item that was never saved.
NSString* identifierOf(EKCalendarItem* item);

/// Ends the process, naming the message that the item meets, when the item's store is gone. On a phone such
/// an item may have lost its content, which whoever uses it would find out on some phones only.
void requireStore(const EKCalendarItem* item, SEL message);

/// A method of a calendar item, by its function; it answers for as long as the item's store lives.
template <auto Function>
struct StoreMethod;
template <typename Result, typename Self, typename... Arguments, Result (*Function)(Self*, SEL, Arguments...)>
struct StoreMethod<Function> {
  static Result answer(Self* self, SEL selector, Arguments... arguments) {
    requireStore(static_cast<const EKCalendarItem*>(static_cast<const void*>(self)), selector);
    return Function(self, selector, arguments...);
  }
};
template <auto Function>
MethodDefinition storeMethod(const char* selector) {
  return method(selector, StoreMethod<Function>::answer);
}

/// The accessors of a member of its state, in the same way.
template <auto Member>
MethodDefinition storeGetter(const char* selector) {
  return storeMethod<readMember<Member>>(selector);
}
template <auto Member>
MethodDefinition storeSetter(const char* selector) {
  return storeMethod<writeMember<Member>>(selector);
}

}  // namespace phone
