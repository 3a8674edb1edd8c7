#include "tavimo/lockscreen/publishing/launch_action.h"

#include "contract/settings.h"
#include "platform/eventkit/ek_persistent_event.h"
#include "platform/foundation/ns_calendar.h"
#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_date_components.h"
#include "platform/foundation/ns_url.h"
#include "tavimo/settings/log.h"

namespace tavimo {

namespace {

BBAction* actionForURL(NSString* text) {
  NSURL* const url = NSURL::URLWithString(text);
  return url == nullptr ? nullptr : BBAction::actionWithLaunchURL(url, nullptr);
}

/// The calendar app's own address of the occurrence: calendar and event from the identifier, the start as
/// seconds since 2001. What marks a detached occurrence in the identifier is no part of the address.
BBAction* openEvent(EKEvent* event) {
  NSString* const identifier = event->persistentEvent()->eventIdentifier();
  NSDate* const start = event->startDate();
  if (identifier == nullptr || start == nullptr) return nullptr;
  NSString* path = identifier->stringByReplacingOccurrencesOfString(":"_ns, "/"_ns);
  const NSRange detached = path->rangeOfString("/RID"_ns, NSString::kLiteralSearch);
  if (detached.location != NSNotFound) path = path->substringToIndex(detached.location);
  NSString* const address = NSString::stringWithFormat("x-apple-calevent://%@?o=%.1f"_ns, path,
                                                       start->timeIntervalSinceReferenceDate());
  TAVIMO_DEBUG(log<"event identifier: %@, URL: %@">(identifier, address));
  return actionForURL(address);
}

BBAction* openDayInFantastical(EKEvent* event) {
  NSDate* const start = event->startDate();
  if (start == nullptr) return nullptr;
  NSDateComponents* const day = NSCalendar::currentCalendar()->components(
      NSCalendar::kYear | NSCalendar::kMonth | NSCalendar::kDay, start);
  return actionForURL(NSString::stringWithFormat("fantastical2://show?date=%lu-%lu-%lu"_ns, day->year(),
                                                 day->month(), day->day()));
}

}  // namespace

BBAction* launchAction(EKEvent* event) {
  switch (swipeAction) {
    case contract::kOpenEvent:
      return openEvent(event);
    case contract::kOpenDayInFantastical:
      return openDayInFantastical(event);
    case contract::kOpenApplication:
      return customLaunchAppBundleID->length() == 0
                 ? nullptr
                 : BBAction::actionWithLaunchBundleID(customLaunchAppBundleID, nullptr);
    default:
      return nullptr;
  }
}

}  // namespace tavimo
