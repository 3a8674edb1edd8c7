// What the `phone` command says of the settings' table.
#pragma once

#include <string>

#include "contract/settings.h"

namespace phone {

using contract::Choice;
using contract::Setting;
using contract::SettingKind;

/// The setting of that key. Throws UsageError, naming a key that is spelled nearly the same, when there is
/// none.
const Setting& settingNamed(const std::string& key);

/// "flag", "number", "choice", "text", "icon".
std::string typeOf(const Setting& setting);

/// The default as `phone settings get` prints it: "on", "14", "white".
std::string fallbackOf(const Setting& setting);

/// What the setting may be, for people: "1 to 100 points", "0 never, 1 sometimes".
std::string rangeOf(const Setting& setting);

}  // namespace phone
