// Where the files lie that the plug-in shares with the phone and with other programs.
#pragma once

namespace contract {

inline constexpr char kSettingsFile[] = "/var/mobile/Library/Preferences/org.quenmark.tavimoprefs.plist";
inline constexpr char kOrderingFile[] = "/var/mobile/Library/Preferences/org.quenmark.tavimo.sorting.plist";
inline constexpr char kCalendarSelectionFile[] =
    "/var/mobile/Library/Preferences/org.quenmark.tavimo.calendars.plist";
inline constexpr char kHiddenEventsFile[] =
    "/var/mobile/Library/Preferences/org.quenmark.tavimo.events.plist";
/// The Calendar app's own. `/private/var` and `/var` are one folder on a phone; the plug-in names it this
/// way.
inline constexpr char kCalendarAppPreferencesFile[] =
    "/private/var/mobile/Library/Preferences/com.apple.mobilecal.plist";
inline constexpr char kCalendarAppIcon[] = "/Applications/MobileCal.app/icon-about@2x.png";

}  // namespace contract
