#include "phone/springboard/list_row.h"

#include "phone/springboard/list_order.h"
#include "platform/bulletinboard/bb_action.h"
#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_string.h"
#include "platform/foundation/ns_url.h"

namespace phone {

namespace {

std::string textOf(NSString* text) {
  const char* const utf8 = text->UTF8String();
  return utf8 == nullptr ? std::string() : utf8;
}

std::optional<double> secondsOf(NSDate* date) {
  if (date == nullptr) return std::nullopt;
  return date->timeIntervalSinceReferenceDate();
}

}  // namespace

ListRow listRowOf(SBAwayListItem* item) {
  ListRow row{.itemClass = object_getClassName(item),
              .title = textOf(item->title()),
              .subtitle = textOf(item->subtitle()),
              .message = textOf(item->message())};
  BBBulletin* const bulletin = bulletinOf(item);
  if (bulletin == nullptr) return row;
  row.identifier = textOf(bulletin->bulletinID());
  row.section = textOf(bulletin->section());
  row.isAllDay = bulletin->dateIsAllDay();
  row.date = secondsOf(bulletin->date());
  row.endDate = secondsOf(bulletin->endDate());
  row.publicationDate = secondsOf(bulletin->publicationDate());
  row.lastInterruptDate = secondsOf(bulletin->lastInterruptDate());
  row.launchURL = textOf(bulletin->defaultAction()->launchURL()->absoluteString());
  row.launchBundleID = textOf(bulletin->defaultAction()->launchBundleID());
  return row;
}

}  // namespace phone
