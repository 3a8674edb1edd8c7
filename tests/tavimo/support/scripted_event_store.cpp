#include "tests/tavimo/support/scripted_event_store.h"

#include "phone/objc/class_definition.h"
#include "platform/eventkit/ek_calendar.h"
#include "platform/eventkit/ek_event.h"
#include "platform/eventkit/ek_event_store.h"
#include "platform/eventkit/ek_persistent_event.h"
#include "platform/foundation/ns_mutable_array.h"
#include "platform/foundation/ns_url.h"
#include "platform/uikit/ui_color.h"
#include "tests/tavimo/support/objects.h"

namespace phone {

namespace {

struct CalendarState {
  ScriptedCalendar script;
};
struct EventState {
  ScriptedEvent script;
};
struct PersistentEventState {
  objc::Owned<NSString> identifier;
};

NSString* textOrNone(const std::optional<std::string>& utf8) { return utf8 ? text(*utf8) : nullptr; }

EKCalendar* calendarAt(std::size_t index) {
  if (index >= scriptedStore().calendars.size()) return nullptr;
  auto calendar = objc::make<EKCalendar, "EKCalendar">();
  stateOf<CalendarState>(calendar.get()).script = scriptedStore().calendars[index];
  return calendar.autorelease();
}

ClassDefinition ekCalendar() {
  return {.name = "EKCalendar",
          .superclass = "NSObject",
          .state = state<CalendarState>(),
          .methods = {method(
                          "calendarIdentifier",
                          +[](EKCalendar* self, SEL) {
                            return text(stateOf<CalendarState>(self).script.identifier);
                          }),
                      method(
                          "CGColor", +[](EKCalendar* self, SEL) {
                            const auto& [red, green, blue] = stateOf<CalendarState>(self).script.color;
                            return UIColor::colorWithRed(red, green, blue, 1)->getCGColor();
                          })}};
}

const ScriptedEvent& scriptOf(EKEvent* event) { return stateOf<EventState>(event).script; }

EKPersistentEvent* persistentEvent(EKEvent* self, SEL) {
  auto stored = objc::make<EKPersistentEvent, "EKPersistentEvent">();
  stateOf<PersistentEventState>(stored.get()).identifier =
      objc::Owned<NSString>::retain(textOrNone(scriptOf(self).identifier));
  return stored.autorelease();
}

NSURL* externalURL(EKEvent* self, SEL) {
  return scriptOf(self).url ? NSURL::URLWithString(text(*scriptOf(self).url)) : nullptr;
}

ClassDefinition ekEvent() {
  return {
      .name = "EKEvent",
      .superclass = "NSObject",
      .state = state<EventState>(),
      .methods = {method(
                      "title", +[](EKEvent* self, SEL) { return textOrNone(scriptOf(self).title); }),
                  method(
                      "location", +[](EKEvent* self, SEL) { return textOrNone(scriptOf(self).location); }),
                  method(
                      "startDate", +[](EKEvent* self, SEL) { return dateAt(scriptOf(self).start); }),
                  method(
                      "endDate", +[](EKEvent* self, SEL) { return dateAt(scriptOf(self).end); }),
                  method(
                      "isAllDay", +[](EKEvent* self, SEL) { return scriptOf(self).isAllDay; }),
                  method(
                      "calendar", +[](EKEvent* self, SEL) { return calendarAt(scriptOf(self).calendar); }),
                  method("_persistentEvent", persistentEvent), method("externalURL", externalURL)}};
}

id initStore(id self, SEL) {
  ++scriptedStore().connections;
  return self;
}

NSArray* calendars(EKEventStore*, SEL) {
  NSMutableArray* const all = NSMutableArray::array();
  for (std::size_t i = 0; i < scriptedStore().calendars.size(); ++i) all->addObject(calendarAt(i));
  return all;
}

EKCalendar* calendarWithIdentifier(EKEventStore*, SEL, NSString* identifier) {
  const auto& all = scriptedStore().calendars;
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (all[i].identifier == utf8(identifier)) return calendarAt(i);
  }
  return nullptr;
}

NSObject* predicate(EKEventStore*, SEL, NSDate* start, NSDate* end, NSArray* searched) {
  ScriptedQuery query{start->timeIntervalSinceReferenceDate(), end->timeIntervalSinceReferenceDate(), {}};
  for (NSUInteger i = 0; i < searched->count(); ++i) {
    query.calendars.push_back(
        utf8(static_cast<EKCalendar*>(searched->objectAtIndex(i))->calendarIdentifier()));
  }
  scriptedStore().queries.push_back(query);
  return text("a search");
}

NSArray* eventsMatching(EKEventStore*, SEL, NSObject* /*predicate*/) {
  NSMutableArray* const found = NSMutableArray::array();
  for (const auto& script : scriptedStore().events) {
    if (!script) {
      found->addObject(objc::sendToClass<"NSNull", "null", NSObject*>());
      continue;
    }
    const auto event = objc::make<EKEvent, "EKEvent">();
    stateOf<EventState>(event.get()).script = *script;
    found->addObject(event.get());
  }
  return found;
}

ClassDefinition ekEventStore() {
  return {.name = "EKEventStore",
          .superclass = "NSObject",
          .methods = {method("init", initStore), method("calendars", calendars),
                      method("calendarWithIdentifier:", calendarWithIdentifier),
                      method("predicateForEventsWithStartDate:endDate:calendars:", predicate),
                      method("eventsMatchingPredicate:", eventsMatching)}};
}

}  // namespace

ScriptedStore& scriptedStore() {
  static ScriptedStore store;
  return store;
}

void registerScriptedEventKit() {
  registerClass(ekCalendar());
  registerClass({.name = "EKPersistentEvent",
                 .superclass = "NSObject",
                 .state = state<PersistentEventState>(),
                 .methods = {getter<&PersistentEventState::identifier>("eventIdentifier")}});
  registerClass(ekEvent());
  registerClass(ekEventStore());
}

}  // namespace phone
