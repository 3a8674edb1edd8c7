#include "tests/tavimo/support/scripted_event_store.h"

#include <memory>

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
/// What a store and its events share.
struct Connection {
  bool isOpen = true;
  int events = 0;
};
struct StoreState {
  std::shared_ptr<Connection> connection = std::make_shared<Connection>();

  ~StoreState() {
    connection->isOpen = false;
    scriptedStore().outlivingEvents += connection->events;
  }
};
struct EventState {
  ScriptedEvent script;
  std::shared_ptr<Connection> connection;

  ~EventState() {
    if (connection) --connection->events;
  }
};
struct PersistentEventState {
  objc::Owned<NSString> identifier;
};

NSString* textOrNone(const std::optional<std::string>& utf8) { return utf8 ? text(*utf8) : nullptr; }

EKCalendar* calendarAt(std::size_t index) {
  if (index >= scriptedStore().calendars.size()) return nullptr;
  auto calendar = objc::make<EKCalendar>();
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
                            const auto& color = stateOf<CalendarState>(self).script.color;
                            if (!color) return CGColorRef();
                            const auto& [red, green, blue] = *color;
                            return UIColor::colorWithRed(red, green, blue, 1)->getCGColor();
                          })}};
}

/// What the event shows: nothing at all once its store is gone.
const ScriptedEvent& scriptOf(EKEvent* event) {
  static const ScriptedEvent blank{
      .start = {}, .end = {}, .calendar = static_cast<std::size_t>(-1), .identifier = {}};
  const auto& [script, connection] = stateOf<EventState>(event);
  return connection->isOpen ? script : blank;
}

NSDate* dateOrNone(const std::optional<double>& seconds) { return seconds ? dateAt(*seconds) : nullptr; }

EKPersistentEvent* persistentEvent(EKEvent* self, SEL) {
  auto stored = objc::make<EKPersistentEvent>();
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
                      "startDate", +[](EKEvent* self, SEL) { return dateOrNone(scriptOf(self).start); }),
                  method(
                      "endDate", +[](EKEvent* self, SEL) { return dateOrNone(scriptOf(self).end); }),
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

NSArray* eventsMatching(EKEventStore* self, SEL, NSObject* /*predicate*/) {
  NSMutableArray* const found = NSMutableArray::array();
  for (const auto& script : scriptedStore().events) {
    if (!script) {
      found->addObject(objc::sendToClass<"NSNull", "null", NSObject*>());
      continue;
    }
    const auto event = objc::make<EKEvent>();
    auto& made = stateOf<EventState>(event.get());
    made.script = *script;
    made.connection = stateOf<StoreState>(self).connection;
    ++made.connection->events;
    found->addObject(event.get());
  }
  return found;
}

ClassDefinition ekEventStore() {
  return {.name = "EKEventStore",
          .superclass = "NSObject",
          .state = state<StoreState>(),
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
