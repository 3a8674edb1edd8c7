// phone settings: the plug-in's settings file, explained and checked.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>

#include "phone/app/phone_files.h"
#include "phone/app/printed_json.h"
#include "phone/app/settings_value.h"
#include "phone/app/usage_error.h"
#include "phone/app/verbs.h"
#include "phone/foundation/phone_root.h"

namespace phone {

namespace {

void listForPeople(NSDictionary* file, const TerminalStyle& style) {
  for (const Setting& setting : contract::kSettings) {
    const SettingValue value = settingValue(setting, file);
    const std::string fallback = fallbackOf(setting);
    const std::string key(setting.key);
    constexpr std::size_t kKeyWidth = 24;
    std::cout << style.bold(key) << std::string(kKeyWidth - std::min(key.size(), kKeyWidth), ' ') << " "
              << (value.inEffect.empty() ? "(nothing)" : value.inEffect)
              << style.dim(value.set ? "" : "  (default)") << "\n"
              << "    " << setting.meaning << "\n"
              << "    "
              << style.dim(typeOf(setting) + ": " + rangeOf(setting) +
                           "; default: " + (fallback.empty() ? "nothing" : fallback))
              << "\n";
    if (!value.strayContent.empty()) {
      std::cout << "    the file has: " << value.strayContent << "\n";
    }
  }
}

void listAsJson(NSDictionary* file) {
  nlohmann::ordered_json all = nlohmann::ordered_json::array();
  for (const Setting& setting : contract::kSettings) {
    const SettingValue value = settingValue(setting, file);
    all.push_back({{"key", setting.key},
                   {"value", value.inEffect},
                   {"isSet", value.set},
                   {"type", typeOf(setting)},
                   {"range", rangeOf(setting)},
                   {"default", fallbackOf(setting)},
                   {"meaning", setting.meaning}});
  }
  std::cout << printedJson(all);
}

void warnAboutMissingIcon(const Setting& setting, const std::string& value) {
  if (setting.kind != SettingKind::kIcon || !value.starts_with('/')) return;
  const std::filesystem::path file = pathOnThisMachine(value);
  if (std::filesystem::exists(file)) return;
  std::cerr << "phone settings set: there is no " << file.string()
            << " yet; until there is, the events have no icon\n";
}

void set(const std::string& key, const std::string& typed) {
  const Setting& setting = settingNamed(key);
  NSObject* const value = settingObject(setting, typed);
  const auto file = readDictionary(contract::kSettingsFile);
  file->setObject(value, textObject(key));
  writeFile(contract::kSettingsFile, file.get());
  warnAboutMissingIcon(setting, typed);
}

void unset(const std::vector<std::string>& keys) {
  const auto file = readDictionary(contract::kSettingsFile);
  const NSUInteger before = file->count();
  for (const std::string& key : keys)
    file->removeObjectForKey(textObject(std::string(settingNamed(key).key)));
  if (file->count() != before) writeFile(contract::kSettingsFile, file.get());
}

struct Arguments {
  bool json = false;
  bool all = false;
  std::string key;
  std::string value;
  std::vector<std::string> keys;
};

void addList(CLI::App& settings, const Invocation& invocation, const std::shared_ptr<Arguments>& arguments) {
  CLI::App* const verb = addVerb(settings, "list", "Show every setting: value, meaning, type, range, default",
                                 "phone settings list --json");
  verb->add_flag("--json", arguments->json, "Print JSON: a list of objects, one for each setting");
  verb->callback([&invocation, arguments] {
    invocation.openPhone();
    const auto file = readDictionary(contract::kSettingsFile);
    arguments->json ? listAsJson(file.get()) : listForPeople(file.get(), invocation.style());
  });
}

void addGet(CLI::App& settings, const Invocation& invocation, const std::shared_ptr<Arguments>& arguments) {
  CLI::App* const verb =
      addVerb(settings, "get", "Print the value that is in effect", "phone settings get textSize");
  verb->add_option("KEY", arguments->key, "The setting's name")->required();
  verb->callback([&invocation, arguments] {
    invocation.openPhone();
    const Setting& setting = settingNamed(arguments->key);
    std::cout << settingValue(setting, readDictionary(contract::kSettingsFile).get()).inEffect << "\n";
  });
}

void addSet(CLI::App& settings, const Invocation& invocation, const std::shared_ptr<Arguments>& arguments) {
  CLI::App* const verb =
      addVerb(settings, "set", "Change a setting; it counts from the next look at the lock screen",
              "phone settings set textColor orange");
  verb->add_option("KEY", arguments->key, "The setting's name")->required();
  verb->add_option("VALUE", arguments->value, "The new value; \"phone settings list\" shows what it may be")
      ->required();
  verb->callback([&invocation, arguments] {
    invocation.openPhone();
    set(arguments->key, arguments->value);
  });
}

void addUnset(CLI::App& settings, const Invocation& invocation, const std::shared_ptr<Arguments>& arguments) {
  CLI::App* const verb =
      addVerb(settings, "unset", "Go back to the default", "phone settings unset textColor textSize");
  verb->add_option("KEY", arguments->keys, "The settings' names");
  verb->add_flag("--all", arguments->all, "Go back to the defaults of all settings");
  verb->callback([&invocation, arguments] {
    if (arguments->all == !arguments->keys.empty()) throw UsageError("name the settings, or give --all");
    invocation.openPhone();
    arguments->all ? removeFile(contract::kSettingsFile) : unset(arguments->keys);
  });
}

}  // namespace

void addSettingsVerb(CLI::App& command, const Invocation& invocation) {
  CLI::App* const settings =
      addVerb(command, "settings", "Show and change the plug-in's settings",
              "phone settings set displayLocation on\n  phone settings get displayLocation");
  settings->require_subcommand(1);
  const auto arguments = std::make_shared<Arguments>();
  addList(*settings, invocation, arguments);
  addGet(*settings, invocation, arguments);
  addSet(*settings, invocation, arguments);
  addUnset(*settings, invocation, arguments);
}

}  // namespace phone
