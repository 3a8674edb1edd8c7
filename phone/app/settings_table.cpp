#include "phone/app/settings_table.h"

#include <vector>

#include "phone/app/spelling.h"
#include "phone/app/usage_error.h"

namespace phone {

const Setting& settingNamed(const std::string& key) {
  for (const Setting& setting : contract::kSettings) {
    if (setting.key == key) return setting;
  }
  std::vector<std::string> keys;
  keys.reserve(contract::kSettings.size());
  for (const Setting& setting : contract::kSettings) keys.emplace_back(setting.key);
  const std::string meant = didYouMean(key, keys);
  throw UsageError("there is no setting \"" + key + "\"" +
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

std::string fallbackOf(const Setting& setting) {
  switch (setting.kind) {
    case SettingKind::kFlag:
      return setting.fallback != 0 ? "on" : "off";
    case SettingKind::kNumber:
      return std::to_string(setting.fallback);
    case SettingKind::kChoice:
      return std::string(contract::choiceOf(setting, setting.fallback)->name);
    case SettingKind::kText:
    case SettingKind::kIcon:
      break;
  }
  return std::string(setting.fallbackText);
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
