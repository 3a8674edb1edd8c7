#include "phone/app/settings_table.h"

#include <algorithm>
#include <array>

#include "phone/app/spelling.h"
#include "phone/app/wrong_use.h"

namespace phone {

namespace {

constexpr std::array<Choice, 3> kBlurModes{{{0, "always"}, {1, "not-for-events-alone"}, {2, "never"}}};
constexpr std::array<Choice, 4> kSwipeActions{
    {{0, "nothing"}, {1, "calendar"}, {2, "fantastical"}, {3, "app"}}};
constexpr std::array<Choice, 10> kColors{{{0, "red"},
                                          {1, "black"},
                                          {2, "gray"},
                                          {3, "white"},
                                          {4, "green"},
                                          {5, "blue"},
                                          {6, "yellow"},
                                          {7, "orange"},
                                          {8, "purple"},
                                          {9, "brown"}}};
constexpr std::array<Choice, 11> kTitleColors = [] {
  std::array<Choice, 11> colors{};
  std::copy(kColors.begin(), kColors.end(), colors.begin());
  colors.back() = {999, "calendar"};
  return colors;
}();

constexpr Setting flag(std::string_view key, bool fallback, std::string_view meaning) {
  return {.key = key, .kind = SettingKind::kFlag, .fallback = fallback ? "on" : "off", .meaning = meaning};
}

constexpr Setting number(std::string_view key, std::string_view fallback, long lowest, long highest,
                         std::string_view unit, std::string_view meaning) {
  return {.key = key,
          .kind = SettingKind::kNumber,
          .fallback = fallback,
          .meaning = meaning,
          .lowest = lowest,
          .highest = highest,
          .unit = unit};
}

constexpr Setting choice(std::string_view key, std::string_view fallback, std::span<const Choice> choices,
                         long otherwise, std::string_view meaning) {
  return {.key = key,
          .kind = SettingKind::kChoice,
          .fallback = fallback,
          .meaning = meaning,
          .choices = choices,
          .otherwise = otherwise};
}

constexpr Setting fontSize(std::string_view key, std::string_view meaning) {
  return number(key, "14", 1, 100, "points", meaning);
}

constexpr std::array<Setting, 21> kSettings{{
    flag("debugMode", false, "Write diagnostic messages to the phone's log"),
    flag("enabled", true, "Show events on the lock screen; off leaves the phone as it is"),
    flag("compatibilityMode", true, "File the events under the Calendar app's section"),
    flag("hideOnNowPlayingScreen", true, "Take the events away while the Now Playing screen is up"),
    {.key = "customLaunchAppBundleID",
     .kind = SettingKind::kText,
     .fallback = "",
     .meaning = "The application that swipeAction \"app\" opens"},
    flag("showSeparatorLines", true, "Draw separator lines in the events' rows"),
    flag("rightAlignedDate", false, "Put the date at the right edge of the row"),
    flag("onlySelectedCalendars", true,
         "Search the calendars that are shown in the Calendar app; off searches those chosen for the lock "
         "screen"),
    flag("displayLocation", false, "Show where the event takes place"),
    flag("sameHeightRows", true, "Give all rows the same height"),
    choice("wallpaperBlurMode", "never", kBlurModes, 2, "When the wallpaper is blurred behind the list"),
    choice("swipeAction", "calendar", kSwipeActions, 1,
           "What swiping an event opens: the event in the Calendar app, its day in Fantastical 2, an "
           "application "
           "of one's own"),
    choice("textColor", "white", kTitleColors, 3, "Colour of the title; \"calendar\" takes the calendar's"),
    fontSize("textSize", "Font size of the title"),
    choice("subtitleTextColor", "gray", kColors, 3, "Colour of the location"),
    fontSize("subtitleTextSize", "Font size of the location"),
    choice("dateTextColor", "gray", kColors, 3,
           "Colour of the date; \"gray\" set here is white at half strength, the default is plain gray"),
    fontSize("dateTextSize", "Font size of the date"),
    number("daysToDisplay", "2", 0, 3650, "days", "How many days beyond today are shown"),
    number("maxEventsToDisplay", "0", 0, 1000000, "events", "The largest number of events; 0 is no limit"),
    {.key = "iconFile",
     .kind = SettingKind::kIcon,
     .fallback = "/Applications/MobileCal.app/icon-about@2x.png",
     .meaning = "The events' icon: an image, a dot in the calendar's colour, or nothing"},
}};

}  // namespace

std::span<const Setting> settingsTable() { return kSettings; }

const Setting& settingNamed(const std::string& key) {
  for (const Setting& setting : kSettings) {
    if (setting.key == key) return setting;
  }
  std::vector<std::string> keys;
  keys.reserve(kSettings.size());
  for (const Setting& setting : kSettings) keys.emplace_back(setting.key);
  const std::string meant = didYouMean(key, keys);
  throw WrongUse("there is no setting \"" + key + "\"" +
                 (meant.empty() ? "; \"phone settings list\" shows all" : meant));
}

std::string typeOf(const Setting& setting) {
  switch (setting.kind) {
    case SettingKind::kFlag:
      return "flag";
    case SettingKind::kNumber:
      return "number";
    case SettingKind::kChoice:
      return "choice";
    case SettingKind::kText:
      return "text";
    case SettingKind::kIcon:
      break;
  }
  return "icon";
}

std::string rangeOf(const Setting& setting) {
  switch (setting.kind) {
    case SettingKind::kFlag:
      return "on, off";
    case SettingKind::kNumber:
      return std::to_string(setting.lowest) + " to " + std::to_string(setting.highest) + " " +
             std::string(setting.unit);
    case SettingKind::kChoice: {
      std::string range;
      for (const Choice& choice : setting.choices) {
        range += (range.empty() ? "" : ", ") + std::to_string(choice.number) + " " + std::string(choice.name);
      }
      return range;
    }
    case SettingKind::kText:
      return "an application identifier, or nothing";
    case SettingKind::kIcon:
      break;
  }
  return "NONE, DOT, DOT_LARGE, an image file on the phone";
}

}  // namespace phone
