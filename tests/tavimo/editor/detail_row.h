// What the tests of the event view's row share: finding the plug-in's item in a view's list, and using it.
#pragma once

#include "phone/uikit/ui_switch.h"
#include "tests/tavimo/editor/recording_calendar.h"
#include "tests/tavimo/editor/row_geometry.h"
#include "tests/tavimo/support/objects.h"

namespace phone {

inline constexpr const char* kOwn = "EKEventDetailItemOrv";
inline constexpr const char* kAlarm = "EKEventAlarmDetailItem";
inline constexpr const char* kPlain = "EKEventDetailItem";

/// The plug-in's item in the view's list (borrowed), or none.
inline NSObject* ownItem(EKEventViewController* view) {
  NSArray* const items = RecordingCalendar::detailItems(view);
  for (NSUInteger i = 0; i < items->count(); ++i) {
    if (objc::send<"class", Class>(items->objectAtIndex(i)) == objc_getClass(kOwn)) {
      return items->objectAtIndex(i);
    }
  }
  return nullptr;
}

inline bool isShown(NSObject* item) { return objc::send<"showOnLockscreen", bool>(item); }
inline UISwitch* switchOf(NSObject* item) { return objc::send<"dndSwitch", UISwitch*>(item); }
inline std::string eventUriOf(NSObject* item) { return utf8(objc::send<"eventURI", NSString*>(item)); }

inline Texts flip(NSObject* item) {
  RecordingCalendar::log();
  flipSwitch(switchOf(item));
  return RecordingCalendar::log();
}

inline Store entries(const Texts& keys) {
  Store wanted(std::in_place);
  for (const std::string& key : keys) wanted->emplace(key, "N");
  return wanted;
}

}  // namespace phone
