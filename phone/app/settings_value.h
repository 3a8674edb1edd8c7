// Values of settings: from what a user types, and from what stands in the phone's file, read as the plug-in
// reads it.
#pragma once

#include "phone/app/settings_table.h"
#include "platform/foundation/ns_dictionary.h"

namespace phone {

/// The object to store for what the user typed (borrowed). Throws UsageError with the reason when the plug-in
/// would take it for something else.
NSObject* settingObject(const Setting& setting, const std::string& typed);

struct SettingValue {
  /// What is in effect, in the form that `phone settings set` takes.
  std::string inEffect;
  /// Whether the file has a value that the plug-in can read; else the default is in effect.
  bool set = false;
  /// What the file holds when that is not what is in effect; else empty.
  std::string strayContent;
};

/// The value in effect with that file's dictionary.
SettingValue settingValue(const Setting& setting, NSDictionary* file);

}  // namespace phone
