#include "phone/foundation/clock.h"

#include "phone/objc/hooking.h"
#include "phone/objc/unknown_selector.h"
#include "platform/foundation/ns_date.h"

namespace phone {

namespace {

std::optional<double> fixedNow;
objc::Displaced<NSDate*(Class, SEL)> realDate;

NSDate* date(Class self, SEL selector) {
  if (!fixedNow) return realDate(self, selector);
  return objc::send<"dateWithTimeIntervalSinceReferenceDate:", NSDate*>(self, *fixedNow);
}

}  // namespace

void setClock(std::optional<double> now) {
  fixedNow = now;
  if (!now) return;
  static const HookResult replaced =
      hookMethod(object_getClass(reinterpret_cast<id>(requiredClass("NSDate"))), "date", date, realDate);
  static_cast<void>(replaced);
}

}  // namespace phone
