#include "phone/app/settings_value.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "phone/app/phone_files.h"
#include "phone/app/usage_error.h"
#include "platform/foundation/ns_number.h"

namespace phone {

namespace {

[[noreturn]] void refuse(const Setting& setting, const std::string& typed, const std::string& reason) {
  throw UsageError(std::string(setting.key) + ": \"" + typed + "\" " + reason);
}

std::optional<long> wholeNumber(const std::string& typed) {
  long number = 0;
  const auto [end, error] = std::from_chars(typed.data(), typed.data() + typed.size(), number);
  if (error != std::errc() || end != typed.data() + typed.size() || typed.empty()) return std::nullopt;
  return number;
}

NSObject* flagObject(const Setting& setting, const std::string& typed) {
  for (const char* word : {"on", "true", "yes", "1"}) {
    if (typed == word) return NSNumber::numberWithBool(true);
  }
  for (const char* word : {"off", "false", "no", "0"}) {
    if (typed == word) return NSNumber::numberWithBool(false);
  }
  refuse(setting, typed, "is neither on nor off");
}

NSObject* numberObject(const Setting& setting, const std::string& typed) {
  const std::optional<long> number = wholeNumber(typed);
  if (!number || *number < setting.lowest || *number > setting.highest) {
    refuse(setting, typed, "is no whole number from " + rangeOf(setting));
  }
  return NSNumber::numberWithInteger(*number);
}

NSObject* choiceObject(const Setting& setting, const std::string& typed) {
  for (const Choice& choice : setting.choices) {
    if (typed == choice.name) return NSNumber::numberWithInteger(choice.number);
  }
  const std::optional<long> number = wholeNumber(typed);
  if (number && contract::choiceOf(setting, *number) != nullptr) return NSNumber::numberWithInteger(*number);
  std::string reason = "is not among its choices";
  if (number) {
    reason += ", the plug-in would take it for \"" +
              std::string(contract::choiceOf(setting, setting.otherwise)->name) + "\"";
  }
  refuse(setting, typed, reason + ": " + rangeOf(setting));
}

NSObject* identifierObject(const Setting& setting, const std::string& typed) {
  const bool plain = std::all_of(typed.begin(), typed.end(), [](unsigned char c) {
    return std::isalnum(c) != 0 || c == '.' || c == '-' || c == '_';
  });
  if (!plain) refuse(setting, typed, "is no application identifier such as com.example.app");
  return textObject(typed);
}

NSObject* iconObject(const Setting& setting, const std::string& typed) {
  const bool known = typed == contract::kNoIcon || typed == contract::kDotIcon ||
                     typed == contract::kLargeDotIcon || typed.starts_with('/');
  if (!known) refuse(setting, typed, "is none of " + rangeOf(setting) + " (a name that begins with /)");
  return textObject(typed);
}

template <objc::FixedString Conversion>
bool answers(NSObject* stored) {
  return stored != nullptr && stored->respondsToSelector(objc::selector<Conversion>());
}

/// The value in effect, or none when the plug-in takes what is stored for missing.
std::optional<std::string> readAsThePlugIn(const Setting& setting, NSObject* stored) {
  switch (setting.kind) {
    case SettingKind::kFlag:
      if (!answers<"boolValue">(stored)) return std::nullopt;
      return static_cast<NSNumber*>(stored)->boolValue() ? "on" : "off";
    case SettingKind::kNumber:
      if (!answers<"intValue">(stored)) return std::nullopt;
      return std::to_string(static_cast<NSNumber*>(stored)->intValue());
    case SettingKind::kChoice: {
      if (!answers<"integerValue">(stored)) return std::nullopt;
      const Choice* const choice =
          contract::choiceOf(setting, static_cast<NSNumber*>(stored)->integerValue());
      return std::string((choice != nullptr ? choice : contract::choiceOf(setting, setting.otherwise))->name);
    }
    case SettingKind::kText:
    case SettingKind::kIcon:
      break;
  }
  NSString* const text = objc::asKind<NSString>(stored);
  if (text == nullptr) return std::nullopt;
  return utf8(text);
}

/// Whether what is stored is more or other than what the plug-in makes of it.
bool isStray(const Setting& setting, NSObject* stored, const std::optional<std::string>& inEffect) {
  if (stored == nullptr) return false;
  if (!inEffect) return true;
  const std::string content = utf8(stored->description());
  if (setting.kind == SettingKind::kChoice) {
    const std::optional<long> number = wholeNumber(content);
    return !number || contract::choiceOf(setting, *number) == nullptr;
  }
  if (setting.kind == SettingKind::kNumber) return content != *inEffect;
  return false;
}

}  // namespace

NSObject* settingObject(const Setting& setting, const std::string& typed) {
  switch (setting.kind) {
    case SettingKind::kFlag:
      return flagObject(setting, typed);
    case SettingKind::kNumber:
      return numberObject(setting, typed);
    case SettingKind::kChoice:
      return choiceObject(setting, typed);
    case SettingKind::kText:
      return identifierObject(setting, typed);
    case SettingKind::kIcon:
      break;
  }
  return iconObject(setting, typed);
}

SettingValue settingValue(const Setting& setting, NSDictionary* file) {
  NSObject* const stored = file->objectForKey(textObject(std::string(setting.key)));
  const std::optional<std::string> inEffect = readAsThePlugIn(setting, stored);
  return {.inEffect = inEffect.value_or(fallbackOf(setting)),
          .set = inEffect.has_value(),
          .strayContent = isStray(setting, stored, inEffect) ? utf8(stored->description()) : ""};
}

}  // namespace phone
