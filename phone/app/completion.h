// What may stand where a command line ends, for shells that complete it.
#pragma once

#include <string>
#include <vector>

namespace phone {

struct VerbDescription;

struct Candidate {
  std::string text;
  /// Empty if there is nothing to say.
  std::string meaning;
};

/// Names on the phone that a word may be, such as those of its calendars; given what is typed of it.
struct PhoneNames {
  virtual ~PhoneNames() = default;
  virtual std::vector<std::string> calendars() const = 0;
  virtual std::vector<std::string> events(const std::string& typed) const = 0;
};

struct Completion {
  enum class Kind {
    kWords,
    kNames,  ///< texts from the phone, which may hold any character
    kFiles,
    kFolders
  };

  Kind kind = Kind::kWords;
  /// Not only those that begin with what is typed: shells have their own ways of matching.
  std::vector<Candidate> candidates = {};
};

/// What the last of the words may be, which is the one being typed; it may be empty. The words are those
/// behind the command's name.
Completion complete(const VerbDescription& command, const std::vector<std::string>& words,
                    const PhoneNames& names);

/// The value that the words give to the option so far; empty if none.
std::string valueGiven(const std::vector<std::string>& words, const std::string& option);

}  // namespace phone
