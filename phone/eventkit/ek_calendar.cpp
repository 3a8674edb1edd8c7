#include "phone/eventkit/ek_objects.h"

namespace phone {

namespace {

/// Colours come from the user interface's framework, so they are made only when somebody looks.
CGColorRef color(EKCalendar* self, SEL) {
  auto& calendar = stateOf<CalendarState>(self);
  if (!calendar.color) {
    const auto part = [rgba = calendar.record.color](int shift) {
      return static_cast<CGFloat>(rgba >> shift & 0xffU) / 255.0;
    };
    calendar.color =
        objc::Owned<UIColor>::retain(UIColor::colorWithRed(part(24), part(16), part(8), part(0)));
  }
  return calendar.color->getCGColor();
}

NSUInteger hash(EKCalendar* self, SEL) {
  return objc::send<"hash", NSUInteger>(stateOf<CalendarState>(self).identifier.get());
}

/// Every search makes new objects; the same calendar is equal in all of them.
bool isEqual(EKCalendar* self, SEL, NSObject* other) {
  if (other == nullptr || !other->isKindOfClass(objc::classOf<EKCalendar>())) return false;
  return stateOf<CalendarState>(self).record.identifier == stateOf<CalendarState>(other).record.identifier;
}

}  // namespace

objc::Owned<EKCalendar> makeCalendar(const CalendarRecord& record) {
  auto calendar = objc::make<EKCalendar>();
  auto& state = stateOf<CalendarState>(calendar.get());
  state.record = record;
  state.identifier = makeString(record.identifier);
  state.title = makeString(record.title);
  return calendar;
}

ClassDefinition ekCalendar() {
  using State = CalendarState;
  return {.name = "EKCalendar",
          .superclass = "NSObject",
          .state = state<State>(),
          .methods = {getter<&State::identifier>("calendarIdentifier"), getter<&State::title>("title"),
                      getter<&State::title>("description"), method("CGColor", color), method("hash", hash),
                      method("isEqual:", isEqual)}};
}

}  // namespace phone
