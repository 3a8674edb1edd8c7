#include "tavimo/lockscreen/publishing/event_bulletin.h"

#include "contract/records.h"
#include "platform/eventkit/ek_calendar.h"
#include "tavimo/lockscreen/color_tag.h"
#include "tavimo/lockscreen/publishing/launch_action.h"
#include "tavimo/settings/item_ordering.h"
#include "tavimo/settings/log.h"

namespace tavimo {

namespace {

UIColor* colorOf(EKCalendar* calendar) {
  CGColorRef const color = calendar->getCGColor();
  return color == nullptr ? nullptr : UIColor::colorWithCGColor(color);
}

void setOrderingDates(BBBulletin* bulletin, NSUInteger position) {
  bulletin->setPublicationDate(orderingDate(position));
  bulletin->setLastInterruptDate(orderingDate(position));
  TAVIMO_DEBUG(log<"bulletin last interrupt date: %@">(bulletin->lastInterruptDate()));
}

}  // namespace

objc::Owned<BBBulletin> bulletinForEvent(EKEvent* event, NSUInteger position) {
  auto bulletin = objc::make<BBBulletin>();
  bulletin->setTitle(event->title());
  bulletin->setMessage(colorTag(colorOf(event->calendar())));
  bulletin->setShowsMessagePreview(true);
  if (displayLocation) bulletin->setSubtitle(event->location());
  bulletin->setDateIsAllDay(event->isAllDay());
  bulletin->setDate(event->startDate());
  bulletin->setEndDate(event->endDate());
  if (compatibilityMode) bulletin->setSection("com.apple.mobilecal"_ns);
  if (BBAction* const action = launchAction(event); action != nullptr) bulletin->setDefaultAction(action);
  if (sortPriority != kNoOrdering) setOrderingDates(bulletin.get(), position);
  bulletin->setBulletinID(NSString::stringWithFormat(
      constantText<objc::FixedString(contract::kOwnRecordPrefix) + objc::FixedString(" %u")>(),
      static_cast<unsigned>(position)));
  return bulletin;
}

}  // namespace tavimo
