#include "tavimo/settings/settings_reader.h"

#include "platform/foundation/ns_dictionary.h"
#include "platform/foundation/ns_number.h"
#include "tavimo/settings/checked_objects.h"
#include "tavimo/settings/color_index.h"
#include "tavimo/settings/image_utilities.h"
#include "tavimo/settings/log.h"
#include "tavimo/settings/preference_files.h"

namespace tavimo {

namespace {

/// Roundness of the calendar app's icon; the corner's radius in points is its square.
constexpr double kIconCornerRadius = 3.0;

/// The value under the key when it knows the conversion, else none. Numbers and texts know all of them.
template <objc::FixedString Conversion>
NSNumber* convertible(NSDictionary* values, NSString* key) {
  NSObject* const value = values->objectForKey(key);
  return value->respondsToSelector(objc::selector<Conversion>()) ? static_cast<NSNumber*>(value) : nullptr;
}

bool readFlag(NSDictionary* values, NSString* key, bool fallback) {
  NSNumber* const value = convertible<"boolValue">(values, key);
  return value == nullptr ? fallback : value->boolValue();
}

NSInteger readSmallInteger(NSDictionary* values, NSString* key, int fallback) {
  NSNumber* const value = convertible<"intValue">(values, key);
  return value == nullptr ? fallback : value->intValue();
}

NSInteger readBlurMode(NSDictionary* values) {
  NSNumber* const value = convertible<"integerValue">(values, "wallpaperBlurMode"_ns);
  if (value == nullptr) return 2;
  const NSInteger mode = value->integerValue();
  return mode == 0 || mode == 1 ? mode : 2;
}

NSInteger readSwipeAction(NSDictionary* values) {
  NSNumber* const value = convertible<"integerValue">(values, "swipeAction"_ns);
  if (value == nullptr) return 1;
  const NSInteger action = value->integerValue();
  return action >= 0 && action <= 3 ? action : 1;
}

UIColor* readColor(NSDictionary* values, NSString* key, UIColor* fallback,
                   UIColor* (*colorOfIndex)(NSInteger)) {
  NSNumber* const value = convertible<"integerValue">(values, key);
  return value == nullptr ? fallback : colorOfIndex(value->integerValue());
}

/// Without the key, `titleColorSameAsCalendarColor` stays as it was; a value of any type, also one that is no
/// colour, ends it.
void readTitleColor(NSDictionary* values) {
  if (values->objectForKey("textColor"_ns) != nullptr) titleColorSameAsCalendarColor = false;
  objc::assignStrong(textColor, readColor(values, "textColor"_ns, UIColor::whiteColor(), [](NSInteger index) {
                       if (index == kCalendarColorIndex) titleColorSameAsCalendarColor = true;
                       return namedColorOfIndex(index);
                     }));
}

objc::Owned<UIImage> loadImage(NSString* path) {
  return objc::makeWith<UIImage, "UIImage", "initWithContentsOfFile:">(path);
}

void readIcon(NSDictionary* values) {
  NSString* const named = asText(values->objectForKey("iconFile"_ns));
  objc::assignStrong(iconFile, named == nullptr ? calendarAppIconFile() : named);
  if (iconFile->isEqualToString(calendarAppIconFile())) {
    const objc::Owned<UIImage> image = loadImage(iconFile);
    objc::assignStrong(icon, roundedCopy(image.get(), kIconCornerRadius).get());
  } else if (!iconFile->isEqualToString("NONE"_ns) && !iconFile->isEqualToString("DOT"_ns) &&
             !iconFile->isEqualToString("DOT_LARGE"_ns)) {
    objc::assignStrong(icon, loadImage(iconFile).get());
  }
}

}  // namespace

void readSettings() {
  const auto file = objc::makeWith<NSDictionary, "NSDictionary", "initWithContentsOfFile:">(settingsFile());
  NSDictionary* const values = file.get();
  if (values == nullptr) NSLog("TVM: unable to load preferences."_ns);

  debugMode = readFlag(values, "debugMode"_ns, false);
  isEnabled = readFlag(values, "enabled"_ns, true);
  compatibilityMode = readFlag(values, "compatibilityMode"_ns, true);
  hideOnNowPlayingScreen = readFlag(values, "hideOnNowPlayingScreen"_ns, true);
  NSString* const bundleID = asText(values->objectForKey("customLaunchAppBundleID"_ns));
  objc::assignStrong(customLaunchAppBundleID, bundleID == nullptr ? ""_ns : bundleID);
  showSeparatorLines = readFlag(values, "showSeparatorLines"_ns, true);
  rightAlignedDate = readFlag(values, "rightAlignedDate"_ns, false);
  onlySelectedCalendars = readFlag(values, "onlySelectedCalendars"_ns, true);
  displayLocation = readFlag(values, "displayLocation"_ns, false);
  sameHeightRows = readFlag(values, "sameHeightRows"_ns, true);
  wallpaperBlurMode = readBlurMode(values);
  swipeAction = readSwipeAction(values);
  readTitleColor(values);
  textSize = readSmallInteger(values, "textSize"_ns, 14);
  objc::assignStrong(subtitleTextColor,
                     readColor(values, "subtitleTextColor"_ns, UIColor::grayColor(), namedColorOfIndex));
  subtitleTextSize = readSmallInteger(values, "subtitleTextSize"_ns, 14);
  objc::assignStrong(dateTextColor,
                     readColor(values, "dateTextColor"_ns, UIColor::grayColor(), dateColorOfIndex));
  dateTextSize = readSmallInteger(values, "dateTextSize"_ns, 14);
  daysToDisplay = readSmallInteger(values, "daysToDisplay"_ns, 2);
  maxEventsToDisplay = readSmallInteger(values, "maxEventsToDisplay"_ns, 0);
  readIcon(values);
}

}  // namespace tavimo
