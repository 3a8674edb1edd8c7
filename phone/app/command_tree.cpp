#include "phone/app/command_tree.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <sstream>

namespace phone {

namespace {

/// The parser describes a choice as "TEXT:{on,off}" and knows it in no other form.
std::vector<std::string> choicesIn(const std::string& typeName) {
  const std::size_t open = typeName.find('{');
  const std::size_t close = typeName.find('}', open);
  std::vector<std::string> choices;
  if (open == std::string::npos || close == std::string::npos) return choices;
  std::istringstream list(typeName.substr(open + 1, close - open - 1));
  for (std::string choice; std::getline(list, choice, ',');) choices.push_back(choice);
  return choices;
}

ArgumentDescription describe(const CLI::Option& option) {
  const std::string typeName = option.get_type_name();
  ArgumentDescription description{.choices = choicesIn(typeName),
                                  .meaning = option.get_description(),
                                  .fallback = option.get_default_str(),
                                  .isRequired = option.get_required(),
                                  .isList = option.get_expected_max() > 1};
  if (option.get_positional()) {
    description.value = option.get_name(true);
    return description;
  }
  for (const std::string& name : option.get_snames()) description.names.push_back("-" + name);
  for (const std::string& name : option.get_lnames()) description.names.push_back("--" + name);
  if (option.get_items_expected_max() != 0) description.value = typeName.substr(0, typeName.find(':'));
  return description;
}

/// The indented lines of the text behind the help.
std::vector<std::string> examplesIn(const std::string& footer) {
  std::istringstream lines(footer);
  std::vector<std::string> examples;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("  ")) examples.push_back(line.substr(2));
  }
  return examples;
}

}  // namespace

const VerbDescription* VerbDescription::verbNamed(const std::string& word) const {
  const auto found =
      std::find_if(verbs.begin(), verbs.end(), [&word](const auto& verb) { return verb.name == word; });
  return found == verbs.end() ? nullptr : &*found;
}

const ArgumentDescription* VerbDescription::optionNamed(const std::string& word) const {
  const auto found = std::find_if(options.begin(), options.end(), [&word](const auto& option) {
    return std::find(option.names.begin(), option.names.end(), word) != option.names.end();
  });
  return found == options.end() ? nullptr : &*found;
}

VerbDescription describe(const CLI::App& verb) {
  VerbDescription description{
      .name = verb.get_name(), .meaning = verb.get_description(), .examples = examplesIn(verb.get_footer())};
  for (const CLI::Option* option : verb.get_options()) {
    if (option->get_group().empty()) continue;
    (option->get_positional() ? description.arguments : description.options).push_back(describe(*option));
  }
  for (const CLI::App* below : verb.get_subcommands({})) {
    if (!below->get_group().empty()) description.verbs.push_back(describe(*below));
  }
  return description;
}

std::vector<std::string> verbNames(const VerbDescription& verb) {
  std::vector<std::string> names;
  names.reserve(verb.verbs.size());
  for (const VerbDescription& below : verb.verbs) names.push_back(below.name);
  return names;
}

}  // namespace phone
