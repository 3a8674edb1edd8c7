// phone completion: the scripts for the shells; and phone complete, which those scripts ask.
#include <CLI/CLI.hpp>
#include <cstdlib>
#include <iostream>
#include <memory>

#include "phone/app/calendar_choice.h"
#include "phone/app/command_tree.h"
#include "phone/app/completion.h"
#include "phone/app/completion_scripts.h"
#include "phone/app/verbs.h"
#include "phone/calendarstore/database/event_lookup.h"
#include "phone/eventkit/store_connection.h"

namespace phone {

namespace {

/// A name that a shell can put into a line, and print on one.
bool isOneLine(const std::string& name) {
  return !name.empty() &&
         std::none_of(name.begin(), name.end(), [](unsigned char c) { return c < 0x20 || c == 0x7f; });
}

/// The names on the phone that the words are about. Without a phone, or with a broken one, there are none:
/// nobody wants to read errors while typing.
class NamesOnPhone : public PhoneNames {
 public:
  explicit NamesOnPhone(const Invocation& invocation) : invocation_(invocation) {}

  std::vector<std::string> calendars() const override {
    return read([](CalendarDatabase& database) {
      std::vector<std::string> titles;
      for (const CalendarRecord& calendar : database.calendars()) titles.push_back(calendar.title);
      return titles;
    });
  }

  std::vector<std::string> events(const std::string& typed) const override {
    return read([&typed](CalendarDatabase& database) { return eventTitles(database, typed); });
  }

 private:
  template <typename Read>
  std::vector<std::string> read(Read readNames) const {
    std::vector<std::string> names;
    try {
      invocation_.openPhone();
      withDatabase([&](CalendarDatabase& database) { names = readNames(database); });
    } catch (const std::exception&) {
      return {};
    }
    std::erase_if(names, [](const std::string& name) { return !isOneLine(name); });
    return names;
  }

  const Invocation& invocation_;
};

const char* kindName(Completion::Kind kind) {
  switch (kind) {
    case Completion::Kind::kWords:
      return "words";
    case Completion::Kind::kNames:
      return "names";
    case Completion::Kind::kFiles:
      return "files";
    case Completion::Kind::kFolders:
      break;
  }
  return "folders";
}

void printCompletion(const CLI::App& command, const Invocation& invocation,
                     const std::vector<std::string>& words) {
  // The phone is the one that the line being typed is about.
  const std::string root = valueGiven(words, "--root");
  if (!root.empty()) setenv("TAVIMO_PHONE", root.c_str(), 1);
  const Completion completion = complete(describe(command), words, NamesOnPhone(invocation));
  std::cout << kindName(completion.kind) << "\n";
  for (const Candidate& candidate : completion.candidates) {
    std::cout << candidate.text << "\t" << candidate.meaning << "\n";
  }
}

}  // namespace

void addCompletionVerbs(CLI::App& command, const Invocation& invocation) {
  CLI::App* const scripts =
      addVerb(command, "completion", "Print a script that lets the shell complete what is typed",
              "eval \"$(phone completion bash)\"    # in ~/.bashrc\n"
              "  source <(phone completion zsh)      # in ~/.zshrc");
  const auto shell = std::make_shared<std::string>();
  scripts->add_option("SHELL", *shell, "bash or zsh")->required()->check(CLI::IsMember({"bash", "zsh"}));
  scripts->callback([shell] { std::cout << (*shell == "bash" ? bashCompletion() : zshCompletion()); });

  CLI::App* const asked =
      addVerb(command, "complete", "Say what the last word may be", "phone complete -- ev");
  asked->group("");
  const auto words = std::make_shared<std::vector<std::string>>();
  asked->add_option("WORD", *words, "The words behind \"phone\", the last as far as it is typed");
  asked->callback([&command, &invocation, words] { printCompletion(command, invocation, *words); });
}

}  // namespace phone
