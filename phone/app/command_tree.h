// The command's verbs and options as data, read from the parser itself: what completes, what explains and
// what corrects a word knows just the words that the parser takes.
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace phone {

/// An option, or an argument without a name of its own.
struct ArgumentDescription {
  /// "--json", short names first; empty for an argument without a name.
  std::vector<std::string> names = {};
  /// What stands for the value, such as FILE; empty for a flag, which takes none.
  std::string value = {};
  /// What the value may be; empty when it may be more than can be listed.
  std::vector<std::string> choices = {};
  std::string meaning = {};
  /// The value when none is given; empty if there is no such value.
  std::string fallback = {};
  bool isRequired = false;
  /// It may be given several times.
  bool isList = false;
};

struct VerbDescription {
  std::string name = {};
  std::string meaning = {};
  /// Command lines that show a use of it.
  std::vector<std::string> examples = {};
  std::vector<ArgumentDescription> options = {};
  /// In their order.
  std::vector<ArgumentDescription> arguments = {};
  std::vector<VerbDescription> verbs = {};

  /// The verb of that name below this one (borrowed), or nil.
  const VerbDescription* verbNamed(const std::string& word) const;
  /// The option of that name (borrowed), or nil.
  const ArgumentDescription* optionNamed(const std::string& word) const;
};

/// The verb with everything below it. What the help leaves out is left out here.
VerbDescription describe(const CLI::App& verb);

/// The names of the verbs below that one.
std::vector<std::string> verbNames(const VerbDescription& verb);

}  // namespace phone
