// Where the files lie that the plug-in shares with other programs.
#pragma once

#include "platform/foundation/literal.h"

namespace tavimo {

inline NSString* settingsFile() {
  return "/var/mobile/Library/Preferences/org.quenmark.tavimoprefs.plist"_ns;
}
inline NSString* itemOrderingFile() {
  return "/var/mobile/Library/Preferences/org.quenmark.tavimo.sorting.plist"_ns;
}
inline NSString* calendarSelectionFile() {
  return "/var/mobile/Library/Preferences/org.quenmark.tavimo.calendars.plist"_ns;
}
inline NSString* hiddenEventsFile() {
  return "/var/mobile/Library/Preferences/org.quenmark.tavimo.events.plist"_ns;
}
inline NSString* calendarAppPreferencesFile() {
  return "/private/var/mobile/Library/Preferences/com.apple.mobilecal.plist"_ns;
}
inline NSString* calendarAppIconFile() { return "/Applications/MobileCal.app/icon-about@2x.png"_ns; }

}  // namespace tavimo
