// The plug-in's 21 settings as data: what `phone settings` explains, checks and writes. docs/settings.md
// states the same for readers.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace phone {

enum class SettingKind {
  kFlag,    ///< on or off
  kNumber,  ///< a whole number from `lowest` to `highest`
  kChoice,  ///< one of `choices`, by number or name
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
  /// As `phone settings get` prints it.
  std::string_view fallback;
  std::string_view meaning;
  long lowest = 0;
  long highest = 0;
  /// What the numbers count; empty: nothing.
  std::string_view unit = {};
  std::span<const Choice> choices = {};
  /// What the plug-in takes any other number for.
  long otherwise = 0;
};

/// In the order in which the plug-in reads them.
std::span<const Setting> settingsTable();

/// The setting of that key. Throws WrongUse, naming a key that is spelled nearly the same, when there is
/// none.
const Setting& settingNamed(const std::string& key);

/// "flag", "number", "choice", "text", "icon".
std::string typeOf(const Setting& setting);

/// What the setting may be, for people: "1 to 100 points", "0 never, 1 sometimes".
std::string rangeOf(const Setting& setting);

}  // namespace phone
