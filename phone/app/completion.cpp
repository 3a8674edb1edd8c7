#include "phone/app/completion.h"

#include <algorithm>
#include <span>

#include "phone/app/command_tree.h"
#include "phone/app/settings_table.h"

namespace phone {

namespace {

class Completer {
 public:
  Completer(const VerbDescription& command, const PhoneNames& names) : command_(command), names_(names) {}

  Completion run(const std::vector<std::string>& words) {
    for (std::size_t i = 0; i + 1 < words.size(); ++i) pass(words[i]);
    const std::string typed = words.empty() ? "" : words.back();
    if (awaited_ != nullptr) return valuesOf(*awaited_, typed);
    if (typed.starts_with('-')) return options(typed);
    return verbsAndArguments(typed);
  }

 private:
  /// Goes past a word that is typed already.
  void pass(const std::string& word) {
    if (awaited_ != nullptr) {
      awaited_ = nullptr;
    } else if (word.starts_with('-')) {
      const ArgumentDescription* const option = optionNamed(word);
      if (option != nullptr && !option->value.empty()) awaited_ = option;
    } else if (const VerbDescription* const below = verb().verbNamed(word)) {
      path_.push_back(below);
    } else {
      arguments_.push_back(word);
    }
  }

  const VerbDescription& verb() const { return *path_.back(); }

  const ArgumentDescription* optionNamed(const std::string& name) const {
    for (const VerbDescription* const each : path_) {
      if (const ArgumentDescription* const option = each->optionNamed(name)) return option;
    }
    return nullptr;
  }

  Completion options(const std::string& typed) const {
    Completion completion;
    if (const std::size_t equals = typed.find('='); equals != std::string::npos) {
      const ArgumentDescription* const option = optionNamed(typed.substr(0, equals));
      if (option == nullptr || option->value.empty()) return completion;
      completion = valuesOf(*option, typed.substr(equals + 1));
      for (Candidate& value : completion.candidates) value.text.insert(0, typed.substr(0, equals + 1));
      return completion;
    }
    for (const VerbDescription* const each : path_) {
      for (const ArgumentDescription& option : each->options) {
        // Every verb has its own help.
        if (option.names.back() == "--help" && each != path_.back()) continue;
        completion.candidates.push_back({option.names.back(), option.meaning});
      }
    }
    return completion;
  }

  Completion verbsAndArguments(const std::string& typed) const {
    const std::span all(verb().arguments);
    if (!all.empty()) {
      const std::size_t next = std::min(arguments_.size(), all.size() - 1);
      const bool isTaken = arguments_.size() > next && !all[next].isList;
      return isTaken ? Completion{} : valuesOf(all[next], typed);
    }
    Completion completion;
    for (const VerbDescription& below : verb().verbs) {
      completion.candidates.push_back({below.name, below.meaning});
    }
    return completion;
  }

  /// What stands for a value in the help says what it is.
  Completion valuesOf(const ArgumentDescription& argument, const std::string& typed) const {
    if (!argument.choices.empty()) return words(argument.choices);
    if (argument.value == "FILE" || argument.value == "PATH") return {.kind = Completion::Kind::kFiles};
    if (argument.value == "FOLDER") return {.kind = Completion::Kind::kFolders};
    if (argument.value == "CALENDAR") return names(names_.calendars());
    if (argument.value == "EVENT") return names(names_.events(typed));
    if (argument.value == "KEY") return settingKeys();
    if (argument.value == "VALUE") return settingValues();
    if (argument.value == "VERB") return helpTopics();
    return {};
  }

  static Completion words(const std::vector<std::string>& all) {
    Completion completion;
    for (const std::string& word : all) completion.candidates.push_back({word, ""});
    return completion;
  }

  static Completion names(const std::vector<std::string>& all) {
    Completion completion = words(all);
    completion.kind = Completion::Kind::kNames;
    return completion;
  }

  static Completion settingKeys() {
    Completion completion;
    for (const Setting& setting : contract::kSettings) {
      completion.candidates.push_back({std::string(setting.key), std::string(setting.meaning)});
    }
    return completion;
  }

  /// Of the setting that was named before.
  Completion settingValues() const {
    if (arguments_.empty()) return {};
    const auto& settings = contract::kSettings;
    const auto setting = std::find_if(settings.begin(), settings.end(),
                                      [this](const Setting& each) { return each.key == arguments_.back(); });
    if (setting == settings.end()) return {};
    if (setting->kind == SettingKind::kFlag) return words({"on", "off"});
    if (setting->kind == SettingKind::kIcon)
      return words({contract::kNoIcon, contract::kDotIcon, contract::kLargeDotIcon});
    Completion completion;
    for (const Choice& choice : setting->choices)
      completion.candidates.push_back({std::string(choice.name), ""});
    return completion;
  }

  /// The verbs below those that were named before.
  Completion helpTopics() const {
    const VerbDescription* topic = &command_;
    for (const std::string& word : arguments_) {
      topic = topic->verbNamed(word);
      if (topic == nullptr) return {};
    }
    Completion completion;
    for (const VerbDescription& below : topic->verbs)
      completion.candidates.push_back({below.name, below.meaning});
    return completion;
  }

  const VerbDescription& command_;
  const PhoneNames& names_;
  /// From the command to the verb that was named last.
  std::vector<const VerbDescription*> path_{&command_};
  /// What was typed behind the verb.
  std::vector<std::string> arguments_;
  /// The option whose value comes next.
  const ArgumentDescription* awaited_ = nullptr;
};

}  // namespace

Completion complete(const VerbDescription& command, const std::vector<std::string>& words,
                    const PhoneNames& names) {
  return Completer(command, names).run(words);
}

std::string valueGiven(const std::vector<std::string>& words, const std::string& option) {
  std::string value;
  for (std::size_t i = 0; i + 1 < words.size(); ++i) {
    if (words[i] == option) value = words[i + 1];
    if (words[i].starts_with(option + "=")) value = words[i].substr(option.size() + 1);
  }
  return value;
}

}  // namespace phone
