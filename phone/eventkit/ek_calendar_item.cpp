#include "phone/eventkit/ek_objects.h"
#include "phone/eventkit/identifiers.h"

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

ClassDefinition ekCalendarItem() {
  using State = CalendarItemState;
  return {.name = "EKCalendarItem",
          .superclass = "NSObject",
          .state = state<State>(),
          .methods = {getter<&State::title>("title"), setter<&State::title>("setTitle:"),
                      getter<&State::location>("location"), setter<&State::location>("setLocation:"),
                      getter<&State::calendar>("calendar"), setter<&State::calendar>("setCalendar:"),
                      method("externalURI", externalAddressOf), method("externalURL", externalAddressOf),
                      method("hasRecurrenceRules", hasRecurrenceRules), method("isNew", isNew)}};
}

}  // namespace phone
