#include "tavimo/settings/settings_reader.h"

#include <algorithm>

#include "contract/settings.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_dictionary.h"
#include "platform/foundation/ns_number.h"
#include "tavimo/settings/color_index.h"
#include "tavimo/settings/log.h"
#include "tavimo/support/image_utilities.h"

namespace tavimo {

namespace {

using contract::SettingKind;

/// Roundness of the calendar app's icon; the corner's radius in points is its square.
constexpr double kIconCornerRadius = 3.0;

/// The value under the key when it knows the conversion, else nil. Numbers and texts know all of them.
template <objc::FixedString Conversion>
NSNumber* convertible(NSDictionary* values, NSString* key) {
  NSObject* const value = values->objectForKey(key);
  return value->respondsToSelector(objc::selector<Conversion>()) ? static_cast<NSNumber*>(value) : nullptr;
}

/// The row of the setting's table, which must be of that kind.
template <objc::FixedString Key, contract::SettingKind Kind>
consteval contract::Setting row() {
  constexpr contract::Setting kRow = contract::setting(Key.c_str());
  static_assert(kRow.kind == Kind);
  return kRow;
}

template <objc::FixedString Key>
bool readFlag(NSDictionary* values) {
  NSNumber* const value = convertible<"boolValue">(values, constantText<Key>());
  return value == nullptr ? row<Key, SettingKind::kFlag>().fallback != 0 : value->boolValue();
}

template <objc::FixedString Key>
NSInteger readNumber(NSDictionary* values) {
  NSNumber* const value = convertible<"intValue">(values, constantText<Key>());
  return value == nullptr ? row<Key, SettingKind::kNumber>().fallback : value->intValue();
}

template <objc::FixedString Key>
NSInteger readChoice(NSDictionary* values) {
  constexpr contract::Setting kRow = row<Key, SettingKind::kChoice>();
  NSNumber* const value = convertible<"integerValue">(values, constantText<Key>());
  if (value == nullptr) return kRow.fallback;
  const NSInteger number = value->integerValue();
  return contract::choiceOf(kRow, number) != nullptr ? number : kRow.otherwise;
}

/// The default is the plain colour of its number; a number in the file means what `colorOfIndex` makes of it.
template <objc::FixedString Key>
UIColor* readColor(NSDictionary* values, UIColor* (*colorOfIndex)(NSInteger)) {
  NSNumber* const value = convertible<"integerValue">(values, constantText<Key>());
  return value == nullptr ? namedColorOfIndex(row<Key, SettingKind::kChoice>().fallback)
                          : colorOfIndex(value->integerValue());
}

template <objc::FixedString Key>
consteval auto fallbackText() {
  constexpr std::string_view kText = contract::setting(Key.c_str()).fallbackText;
  objc::FixedString<kText.size() + 1> text;
  std::copy(kText.begin(), kText.end(), text.characters);
  return text;
}

template <objc::FixedString Key>
NSString* readText(NSDictionary* values) {
  NSString* const value = objc::asKind<NSString>(values->objectForKey(constantText<Key>()));
  return value == nullptr ? constantText<fallbackText<Key>()>() : value;
}

/// Without the key, `titleColorSameAsCalendarColor` stays as it was; a value of any type, also one that is no
/// colour, ends it.
void readTitleColor(NSDictionary* values) {
  if (values->objectForKey("textColor"_ns) != nullptr) titleColorSameAsCalendarColor = false;
  objc::assignStrong(textColor, readColor<"textColor">(values, [](NSInteger index) {
                       if (index == contract::kCalendarColor.number) titleColorSameAsCalendarColor = true;
                       return namedColorOfIndex(index);
                     }));
}

objc::Owned<UIImage> loadImage(NSString* path) {
  return objc::makeWith<UIImage, "initWithContentsOfFile:">(path);
}

void readIcon(NSDictionary* values) {
  objc::assignStrong(iconFile, readText<"iconFile">(values));
  if (iconFile->isEqualToString(constantText<contract::kCalendarAppIcon>())) {
    const objc::Owned<UIImage> image = loadImage(iconFile);
    objc::assignStrong(icon, roundedCopy(image.get(), kIconCornerRadius).get());
  } else if (!iconFile->isEqualToString(constantText<contract::kNoIcon>()) &&
             !iconFile->isEqualToString(constantText<contract::kDotIcon>()) &&
             !iconFile->isEqualToString(constantText<contract::kLargeDotIcon>())) {
    objc::assignStrong(icon, loadImage(iconFile).get());
  }
}

}  // namespace

void readSettings() {
  const auto file =
      objc::makeWith<NSDictionary, "initWithContentsOfFile:">(constantText<contract::kSettingsFile>());
  NSDictionary* const values = file.get();
  if (values == nullptr) log<"unable to load preferences.">();

  debugMode = readFlag<"debugMode">(values);
  isEnabled = readFlag<"enabled">(values);
  compatibilityMode = readFlag<"compatibilityMode">(values);
  hideOnNowPlayingScreen = readFlag<"hideOnNowPlayingScreen">(values);
  objc::assignStrong(customLaunchAppBundleID, readText<"customLaunchAppBundleID">(values));
  showSeparatorLines = readFlag<"showSeparatorLines">(values);
  rightAlignedDate = readFlag<"rightAlignedDate">(values);
  onlySelectedCalendars = readFlag<"onlySelectedCalendars">(values);
  displayLocation = readFlag<"displayLocation">(values);
  sameHeightRows = readFlag<"sameHeightRows">(values);
  wallpaperBlurMode = readChoice<"wallpaperBlurMode">(values);
  swipeAction = readChoice<"swipeAction">(values);
  readTitleColor(values);
  textSize = readNumber<"textSize">(values);
  objc::assignStrong(subtitleTextColor, readColor<"subtitleTextColor">(values, namedColorOfIndex));
  subtitleTextSize = readNumber<"subtitleTextSize">(values);
  objc::assignStrong(dateTextColor, readColor<"dateTextColor">(values, dateColorOfIndex));
  dateTextSize = readNumber<"dateTextSize">(values);
  daysToDisplay = readNumber<"daysToDisplay">(values);
  maxEventsToDisplay = readNumber<"maxEventsToDisplay">(values);
  readIcon(values);
}

}  // namespace tavimo
