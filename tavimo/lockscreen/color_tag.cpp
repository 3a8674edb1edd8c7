#include "tavimo/lockscreen/color_tag.h"

#include "contract/records.h"
#include "platform/foundation/ns_array.h"
#include "platform/objc/owned.h"
#include "tavimo/settings/log.h"
#include "tavimo/support/color_strings.h"

namespace tavimo {

namespace {

constexpr objc::FixedString kPrefix = contract::kColorTagPrefix;
constexpr NSUInteger kTagLength = kPrefix.length() + contract::kColorTextLength;

}  // namespace

NSString* colorTag(UIColor* calendarColor) {
  const auto colorText = objc::Owned<NSString>::adopt(hexStringForColor(calendarColor));
  return NSString::stringWithFormat(constantText<kPrefix + objc::FixedString("%@")>(), colorText.get());
}

UIColor* taggedColor(BBBulletin* bulletin) {
  NSString* const message = objc::asKind<NSString>(bulletin->message());
  if (message->length() < kTagLength) {
    log<"did not find custom color string! (2)">();
    return UIColor::whiteColor();
  }
  NSArray* const fields = message->componentsSeparatedByString("|"_ns);
  if (fields->count() < 2) {
    log<"did not find custom color string! (1)">();
    return UIColor::whiteColor();
  }
  return objc::Owned<UIColor>::adopt(colorFromHexString(static_cast<NSString*>(fields->objectAtIndex(1))))
      .autorelease();
}

}  // namespace tavimo
