// The settings, one row each: the plug-in reads by them, `phone settings` explains, checks and writes by
// them, the pane in the phone's Settings is made of them, and docs/settings.md states the same for readers.
#pragma once

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "contract/files.h"

namespace contract {

enum class SettingKind {
  kFlag,    ///< on or off
  kNumber,  ///< a whole number from `lowest` to `highest`
  kChoice,  ///< the number of one of `choices`
  kText,    ///< an application identifier, or nothing
  kIcon     ///< NONE, DOT, DOT_LARGE or an image file on the phone
};

struct Choice {
  long number;
  std::string_view name;
};

struct Setting {
  std::string_view key;
  SettingKind kind;
  std::string_view meaning;
  /// The default of a flag (1 is on), number or choice.
  long fallback = 0;
  /// The default of a text or icon.
  std::string_view fallbackText = {};
  /// What people may set a number to. The plug-in itself takes any.
  long lowest = 0;
  long highest = 0;
  /// What a number counts.
  std::string_view unit = {};
  std::span<const Choice> choices = {};
  /// The choice that the plug-in takes any other number for.
  long otherwise = 0;
};

/// When the wallpaper is blurred behind the list.
enum BlurMode : long { kBlurAlways = 0, kBlurNotForEventsAlone = 1, kBlurNever = 2 };
inline constexpr std::array<Choice, 3> kBlurModes{
    {{kBlurAlways, "always"}, {kBlurNotForEventsAlone, "not-for-events-alone"}, {kBlurNever, "never"}}};

/// What a tap on an event opens.
enum SwipeAction : long { kOpenNothing = 0, kOpenEvent = 1, kOpenDayInFantastical = 2, kOpenApplication = 3 };
inline constexpr std::array<Choice, 4> kSwipeActions{{{kOpenNothing, "nothing"},
                                                      {kOpenEvent, "calendar"},
                                                      {kOpenDayInFantastical, "fantastical"},
                                                      {kOpenApplication, "app"}}};

/// What an icon can be other than an image file.
inline constexpr char kNoIcon[] = "NONE";
inline constexpr char kDotIcon[] = "DOT";
inline constexpr char kLargeDotIcon[] = "DOT_LARGE";

inline constexpr std::array<Choice, 10> kColors{{{0, "red"},
                                                 {1, "black"},
                                                 {2, "gray"},
                                                 {3, "white"},
                                                 {4, "green"},
                                                 {5, "blue"},
                                                 {6, "yellow"},
                                                 {7, "orange"},
                                                 {8, "purple"},
                                                 {9, "brown"}}};
/// The title's colour may be the calendar's own.
inline constexpr Choice kCalendarColor{999, "calendar"};
inline constexpr auto kTitleColors = [] {
  std::array<Choice, kColors.size() + 1> colors{};
  std::copy(kColors.begin(), kColors.end(), colors.begin());
  colors.back() = kCalendarColor;
  return colors;
}();

namespace detail {

constexpr Setting flag(std::string_view key, bool fallback, std::string_view meaning) {
  return {.key = key, .kind = SettingKind::kFlag, .meaning = meaning, .fallback = fallback ? 1 : 0};
}

constexpr Setting number(std::string_view key, long fallback, long lowest, long highest,
                         std::string_view unit, std::string_view meaning) {
  return {.key = key,
          .kind = SettingKind::kNumber,
          .meaning = meaning,
          .fallback = fallback,
          .lowest = lowest,
          .highest = highest,
          .unit = unit};
}

constexpr Setting fontSize(std::string_view key, std::string_view meaning) {
  return number(key, 14, 1, 100, "points", meaning);
}

constexpr Setting choice(std::string_view key, long fallback, std::span<const Choice> choices, long otherwise,
                         std::string_view meaning) {
  return {.key = key,
          .kind = SettingKind::kChoice,
          .meaning = meaning,
          .fallback = fallback,
          .choices = choices,
          .otherwise = otherwise};
}

/// Not constexpr, so that a call of it ends the compilation.
void thereIsNoSuchSetting();

}  // namespace detail

/// In the order in which the plug-in reads them.
inline constexpr std::array kSettings{
    detail::flag("debugMode", false, "Write diagnostic messages to the phone's log"),
    detail::flag("enabled", true, "Show events on the lock screen; off leaves the phone as it is"),
    detail::flag("compatibilityMode", true, "File the events under the Calendar app's section"),
    detail::flag("hideOnNowPlayingScreen", true, "Take the events away while the Now Playing screen is up"),
    Setting{.key = "customLaunchAppBundleID",
            .kind = SettingKind::kText,
            .meaning = "The application that swipeAction \"app\" opens"},
    detail::flag("showSeparatorLines", true, "Draw separator lines in the events' rows"),
    detail::flag("rightAlignedDate", false, "Put the date at the right edge of the row"),
    detail::flag("onlySelectedCalendars", true,
                 "Search the calendars that are shown in the Calendar app; off searches those chosen for the "
                 "lock screen"),
    detail::flag("displayLocation", false, "Show where the event takes place"),
    detail::flag("sameHeightRows", true, "Give all rows the same height"),
    detail::choice("wallpaperBlurMode", kBlurNever, kBlurModes, kBlurNever,
                   "When the wallpaper is blurred behind the list"),
    detail::choice("swipeAction", kOpenEvent, kSwipeActions, kOpenEvent,
                   "What swiping an event opens: the event in the Calendar app, its day in Fantastical 2, an "
                   "application of one's own"),
    detail::choice("textColor", 3, kTitleColors, 3, "Colour of the title; \"calendar\" takes the calendar's"),
    detail::fontSize("textSize", "Font size of the title"),
    detail::choice("subtitleTextColor", 2, kColors, 3, "Colour of the location"),
    detail::fontSize("subtitleTextSize", "Font size of the location"),
    detail::choice(
        "dateTextColor", 2, kColors, 3,
        "Colour of the date; \"gray\" set here is white at half strength, the default is plain gray"),
    detail::fontSize("dateTextSize", "Font size of the date"),
    detail::number("daysToDisplay", 2, 0, 3650, "days", "How many days beyond today are shown"),
    detail::number("maxEventsToDisplay", 0, 0, 1000000, "events",
                   "The largest number of events; 0 is no limit"),
    Setting{.key = "iconFile",
            .kind = SettingKind::kIcon,
            .meaning = "The events' icon: an image, a dot in the calendar's colour, or nothing",
            .fallbackText = kCalendarAppIcon},
};

/// The row of that key, at compile time; a key without a row does not compile.
consteval const Setting& setting(std::string_view key) {
  for (const Setting& row : kSettings) {
    if (row.key == key) return row;
  }
  detail::thereIsNoSuchSetting();
  return kSettings.front();
}

/// The choice of that number, or nil.
constexpr const Choice* choiceOf(const Setting& setting, long number) {
  for (const Choice& choice : setting.choices) {
    if (choice.number == number) return &choice;
  }
  return nullptr;
}

}  // namespace contract
