#include "phone/app/refusal.h"

#include <CLI/CLI.hpp>

#include "phone/app/command_tree.h"
#include "phone/app/parse_words.h"
#include "phone/app/spelling.h"

namespace phone {

namespace {

/// The verb as far as it was understood, such as `settings set` of `phone settings set`.
const CLI::App& innermostVerb(const CLI::App& command) {
  const CLI::App* verb = &command;
  while (!verb->get_subcommands().empty()) verb = verb->get_subcommands().front();
  return *verb;
}

/// The options that may stand where the innermost verb stands.
std::vector<std::string> optionNames(const CLI::App& command) {
  std::vector<std::string> names;
  for (const CLI::App* verb = &innermostVerb(command); verb != nullptr; verb = verb->get_parent()) {
    for (const ArgumentDescription& option : describe(*verb).options) names.push_back(option.names.back());
  }
  return names;
}

std::string unknownOption(const CLI::App& command, const std::string& word) {
  const std::string name = word.substr(0, word.find('='));
  return "there is no option " + name + " here" + didYouMean(name, optionNames(command));
}

/// What there is to say instead of the parser's own words for a verb that is missing or unknown.
std::string missingVerb(const CLI::App& command) {
  const std::vector<std::string> names = verbNames(describe(innermostVerb(command)));
  std::string verbs;
  for (const std::string& name : names) verbs += (verbs.empty() ? "" : ", ") + name;
  const std::vector<std::string> unknown = command.remaining(true);
  if (unknown.empty()) return "say what to do; choose one of " + verbs;
  const std::string& word = unknown.front();
  if (word.starts_with('-')) return unknownOption(command, word);
  const bool isOption = describe(innermostVerb(command)).optionNamed("--" + word) != nullptr;
  const std::string meant = isOption ? "; did you mean --" + word + "?" : didYouMean(word, names);
  return "there is no \"" + word + "\" here" + (meant.empty() ? "; choose one of " + verbs : meant);
}

std::string unknownWord(const CLI::App& command, const CLI::ParseError& error) {
  for (const std::string& word : command.remaining(true)) {
    if (word.starts_with('-')) return unknownOption(command, word);
  }
  return inWords(error);
}

}  // namespace

std::string spokenSoFar(const CLI::App& command) {
  std::string words;
  for (const CLI::App* verb = &innermostVerb(command); verb != nullptr; verb = verb->get_parent()) {
    words = verb->get_name() + (words.empty() ? "" : " " + words);
  }
  return words;
}

std::string reasonOf(const CLI::App& command, const CLI::ParseError& error) {
  const bool needsVerb = !innermostVerb(command).get_subcommands({}).empty();
  if (needsVerb && error.get_name() == "RequiredError") return missingVerb(command);
  // By its code: the parser files it under the name of the verb.
  const bool isExtra = error.get_exit_code() == static_cast<int>(CLI::ExitCodes::ExtrasError);
  return isExtra ? unknownWord(command, error) : inWords(error);
}

}  // namespace phone
