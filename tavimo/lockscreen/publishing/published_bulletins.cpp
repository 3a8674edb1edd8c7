#include "tavimo/lockscreen/publishing/published_bulletins.h"

#include "platform/eventkit/ek_event.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/foundation_version.h"
#include "platform/foundation/ns_mutable_array.h"
#include "platform/foundation/ns_url.h"
#include "platform/objc/ivar.h"
#include "tavimo/events/event_query.h"
#include "tavimo/events/hidden_event_store.h"
#include "tavimo/lockscreen/lock_screen_state.h"
#include "tavimo/lockscreen/publishing/event_bulletin.h"
#include "tavimo/settings/log.h"

namespace tavimo {

namespace {

/// The list controller's feed for notifications.
constexpr NSUInteger kFeed = 0;

/// The records of the last load, in the order built; made at the first load.
NSMutableArray* publishedBulletins() {
  static NSMutableArray* const bulletins = objc::make<NSMutableArray>().relinquish();
  return bulletins;
}

NSObject* observerOf(SBLockScreenNotificationListController* controller) {
  return objc::readIvar<NSObject>(controller, "_observer");
}

void handOver(SBLockScreenNotificationListController* controller, BBBulletin* bulletin) {
  if (controller->respondsToSelector(objc::selector<"observer:addBulletin:forFeed:">())) {
    controller->addBulletin(observerOf(controller), bulletin, kFeed);
  } else if (controller->respondsToSelector(
                 objc::selector<"observer:addBulletin:forFeed:playLightsAndSirens:withReply:">())) {
    controller->addBulletin(observerOf(controller), bulletin, kFeed, false, nullptr);
  } else {
    log<"list controller not responding to known selectors!">();
  }
}

}  // namespace

void withdrawBulletins(SBLockScreenNotificationListController* controller) {
  NSMutableArray* const bulletins = publishedBulletins();
  if (NSFoundationVersionNumber >= kFirstFoundationKeepingRecords) {
    const NSUInteger count = bulletins->count();
    for (NSUInteger i = 0; i < count; ++i) {
      controller->removeBulletin(observerOf(controller),
                                 static_cast<BBBulletin*>(bulletins->objectAtIndex(i)));
    }
  }
  bulletins->removeAllObjects();
}

void publishEvents(SBLockScreenNotificationListController* controller) {
  // In this order: the pool lets go of the events, and of what they were asked for, before their store goes.
  const auto store = objc::make<EKEventStore>();
  const AutoreleasePool pool;
  const objc::Owned<NSArray> events = fetchCalendarEvents(store.get());
  const NSUInteger count = events->count();
  tvmItemsCount = static_cast<NSInteger>(count);
  NSDictionary* const hiddenEvents = loadHiddenEvents();
  log<"hidden events:\r\n %@">(hiddenEvents);
  // A hidden event keeps its index: identifiers and ordering dates follow the query, not the list.
  for (NSUInteger i = 0; i < count; ++i) {
    auto* const event = static_cast<EKEvent*>(events->objectAtIndex(i));
    log<"adding calendar event '%@', start at %@">(event->title(), event->startDate());
    if (isHiddenEvent(hiddenEvents, hiddenEventKey(event->externalURL()->absoluteString()))) {
      log<"hiding calendar event '%@'">(event->title());
      continue;
    }
    const objc::Owned<BBBulletin> bulletin = bulletinForEvent(event, i);
    if (!bulletin) continue;
    publishedBulletins()->addObject(bulletin.get());
    handOver(controller, bulletin.get());
  }
}

}  // namespace tavimo
