// phone help: the help of a verb, and the manual page.
#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>

#include "phone/app/command_tree.h"
#include "phone/app/manual.h"
#include "phone/app/spelling.h"
#include "phone/app/usage_error.h"
#include "phone/app/verbs.h"

namespace phone {

namespace {

void showHelp(const CLI::App& command, const std::vector<std::string>& words) {
  const CLI::App* verb = &command;
  std::string before;
  for (const std::string& word : words) {
    const VerbDescription known = describe(*verb);
    const std::string spoken = before + (before.empty() ? "" : " ") + known.name;
    if (known.verbNamed(word) == nullptr) {
      throw UsageError("there is no verb \"" + spoken + " " + word + "\"" +
                       didYouMean(word, verbNames(known)));
    }
    before = spoken;
    verb = verb->get_subcommand(word);
  }
  // Not help(), which goes on to the verb that was typed: this one.
  const std::string name = before + (before.empty() ? "" : " ") + verb->get_name();
  std::string help = verb->get_formatter()->make_help(verb, name, CLI::AppFormatMode::Normal);
  if (!help.ends_with('\n')) help += '\n';
  std::cout << help;
}

}  // namespace

void addHelpVerb(CLI::App& command) {
  CLI::App* const verb = addVerb(command, "help", "Show the help of a verb, or the manual page",
                                 "phone help event new\n  phone help --man | man -l -");
  struct Arguments {
    std::vector<std::string> words;
    bool manual = false;
  };
  const auto arguments = std::make_shared<Arguments>();
  verb->add_option("VERB", arguments->words,
                   "The verb, such as \"event new\"; without one, the whole command");
  verb->add_flag("--man", arguments->manual, "Print the manual page, in the form that man(1) reads");
  verb->callback([&command, arguments] {
    if (arguments->manual) {
      if (!arguments->words.empty()) throw UsageError("the manual page is about all verbs; name none");
      std::cout << manualPage(describe(command));
    } else {
      showHelp(command, arguments->words);
    }
  });
}

}  // namespace phone
