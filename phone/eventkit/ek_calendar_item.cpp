#include <cstdio>
#include <cstdlib>

#include "phone/calendarstore/database/identifiers.h"
#include "phone/eventkit/ek_objects.h"

namespace phone {

namespace {

NSURL* externalAddressOf(EKCalendarItem* self, SEL) {
  auto& item = stateOf<CalendarItemState>(self);
  if (item.stored && !item.address) {
    const auto text = makeString(externalAddress(item.storedCalendar, item.stored->uid, item.stored->start));
    item.address = objc::Owned<NSURL>::retain(NSURL::URLWithString(text.get()));
  }
  return item.address.get();
}

bool isNew(EKCalendarItem* self, SEL) { return !stateOf<CalendarItemState>(self).stored; }

bool hasRecurrenceRules(EKCalendarItem* self, SEL) {
  const auto& stored = stateOf<CalendarItemState>(self).stored;
  return stored && stored->repeats;
}

}  // namespace

objc::Owned<NSString> makeString(const std::string& text) {
  NSString* const made = NSString::stringWithUTF8String(text.c_str());
  return objc::Owned<NSString>::retain(made == nullptr ? NSString::stringWithUTF8String("") : made);
}

NSString* identifierOf(EKCalendarItem* object) {
  auto& item = stateOf<CalendarItemState>(object);
  if (item.stored && !item.identifier) {
    item.identifier =
        makeString(eventIdentifier(item.storedCalendar, item.stored->uid, item.stored->replaces));
  }
  return item.identifier.get();
}

void requireStore(const EKCalendarItem* item, SEL message) {
  if (!stateOf<CalendarItemState>(item).store.expired()) return;
  std::fprintf(stderr, "message %s: the %s %p has lost its content, because its EKEventStore is gone\n",
               sel_getName(message), object_getClassName(objc::asObject(item)),
               static_cast<const void*>(item));
  std::abort();
}

ClassDefinition ekCalendarItem() {
  using State = CalendarItemState;
  return {.name = "EKCalendarItem",
          .superclass = "NSObject",
          .state = state<State>(),
          .methods = {
              storeGetter<&State::title>("title"), storeSetter<&State::title>("setTitle:"),
              storeGetter<&State::location>("location"), storeSetter<&State::location>("setLocation:"),
              storeGetter<&State::calendar>("calendar"), storeSetter<&State::calendar>("setCalendar:"),
              storeMethod<externalAddressOf>("externalURI"), storeMethod<externalAddressOf>("externalURL"),
              storeMethod<hasRecurrenceRules>("hasRecurrenceRules"), storeMethod<isNew>("isNew")}};
}

}  // namespace phone
