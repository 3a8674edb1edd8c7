#include "phone/eventkit/ek_objects.h"
#include "platform/foundation/literal.h"

namespace phone {

namespace {

objc::Owned<NSDate> dateAt(Seconds instant) {
  return objc::Owned<NSDate>::retain(
      NSDate::dateWithTimeIntervalSinceReferenceDate(static_cast<double>(instant)));
}

StoreLife::weak_type lifeOf(EKEventStore* store) {
  return store == nullptr ? StoreLife::weak_type() : stateOf<EventStoreState>(store).life;
}

EKEvent* eventWithEventStore(Class, SEL, EKEventStore* store) {
  auto event = objc::make<EKEvent>();
  auto& item = stateOf<CalendarItemState>(event.get());
  item.store = lifeOf(store);
  item.title = objc::Owned<NSString>::retain(""_ns);
  item.calendar =
      objc::Owned<EKCalendar>::retain(objc::send<"defaultCalendarForNewEvents", EKCalendar*>(store));
  return event.autorelease();
}

NSString* identifier(EKEvent* self, SEL) { return identifierOf(self); }

EKPersistentEvent* persistentEvent(EKEvent* self, SEL) {
  auto& event = stateOf<EventState>(self);
  NSString* const text = identifierOf(self);
  if (text != nullptr && !event.persistentEvent) {
    event.persistentEvent = objc::make<EKPersistentEvent>();
    stateOf<PersistentEventState>(event.persistentEvent.get()).identifier =
        objc::Owned<NSString>::retain(text);
  }
  return event.persistentEvent.get();
}

bool isDetached(EKEvent* self, SEL) {
  const auto& stored = stateOf<CalendarItemState>(self).stored;
  return stored && stored->replaces;
}

NSString* describe(EKEvent* self, SEL) {
  return NSString::stringWithFormat("<EKEvent %@: %@>"_ns, identifierOf(self), self->title());
}

/// What was made from the stored occurrence must be made anew.
void setStored(EKEvent* event, std::optional<EventOccurrence> stored, std::string calendar) {
  auto& item = stateOf<CalendarItemState>(event);
  item.stored = std::move(stored);
  item.storedCalendar = std::move(calendar);
  item.identifier = {};
  item.address = {};
  stateOf<EventState>(event).persistentEvent = {};
}

}  // namespace

void showOccurrence(EKEvent* object, const EventOccurrence& occurrence, EKCalendar* calendar) {
  setStored(object, occurrence, stateOf<CalendarState>(calendar).record.identifier);
  auto& item = stateOf<CalendarItemState>(object);
  item.title = makeString(occurrence.title);
  item.location = occurrence.location ? makeString(*occurrence.location) : objc::Owned<NSString>();
  item.calendar = objc::Owned<EKCalendar>::retain(calendar);
  auto& event = stateOf<EventState>(object);
  event.startDate = dateAt(occurrence.start);
  event.endDate = dateAt(occurrence.end);
  event.isAllDay = occurrence.isAllDay;
}

void forgetOccurrence(EKEvent* event) { setStored(event, std::nullopt, {}); }

objc::Owned<EKEvent> makeEvent(EKEventStore* store, const EventOccurrence& occurrence, EKCalendar* calendar) {
  auto event = objc::make<EKEvent>();
  stateOf<CalendarItemState>(event.get()).store = lifeOf(store);
  showOccurrence(event.get(), occurrence, calendar);
  return event;
}

ClassDefinition ekEvent() {
  using State = EventState;
  return {.name = "EKEvent",
          .superclass = "EKCalendarItem",
          .state = state<State>(),
          .methods = {
              classMethod("eventWithEventStore:", eventWithEventStore),
              storeGetter<&State::startDate>("startDate"), storeSetter<&State::startDate>("setStartDate:"),
              storeGetter<&State::endDate>("endDate"), storeSetter<&State::endDate>("setEndDate:"),
              storeGetter<&State::isAllDay>("isAllDay"), storeSetter<&State::isAllDay>("setAllDay:"),
              storeMethod<identifier>("eventIdentifier"), storeMethod<persistentEvent>("_persistentEvent"),
              storeMethod<isDetached>("isDetached"), storeMethod<describe>("description")}};
}

}  // namespace phone
