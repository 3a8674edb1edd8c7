// A phone that is put back as it was before every run, and runs of one verb on it with a fault each.
#pragma once

#include <string>
#include <vector>

#include "tests/app/command.h"
#include "tests/faults/fault.h"
#include "tests/faults/folder_state.h"

namespace phone {

/// A verb that the faults strike. Every word is as the user types it, in the folder that the phone lies in.
struct Verb {
  /// Letters alone: it becomes part of a test's name.
  std::string name;
  std::vector<std::string> words;
  /// What it prints when it is done, where it prints anything of the kind.
  std::string success = {};
  /// Whether it needs an empty folder, and so names what a killed run left there instead of starting again.
  bool refusesLeftovers = false;
};

std::ostream& operator<<(std::ostream& stream, const Verb& verb);

/// A run, and the folder as it was found after it.
struct FaultyRun {
  CommandResult result;
  Tally tally = {};
  FolderState state = {};
  std::vector<std::string> damaged = {};

  bool wasEndedBySignal() const { return result.exitCode > 128; }
};

class FaultyPhone {
 public:
  /// Fills a phone with calendars, settings, an order and choices, and runs the verb on it without a fault.
  explicit FaultyPhone(Verb verb);

  const Verb& verb() const { return verb_; }
  const FolderState& before() const { return before_; }
  /// What the verb does when nothing fails.
  const FaultyRun& whole() const { return whole_; }

  /// Puts the phone back as it was, and runs the verb.
  FaultyRun run(const Fault& fault);
  /// Runs the verb once more on what is there, without a fault.
  FaultyRun runAgain() { return runHere({.call = "open", .error = "5"}); }
  /// Runs the verb on the phone as it was, without a fault, its output going into the file.
  FaultyRun runInto(const std::string& output);
  /// How many calls of the kind the verb makes on its files; for memory, in all.
  std::uint32_t callsOf(const std::string& call) { return run({.call = call, .error = "5"}).tally.calls; }

 private:
  FaultyRun runHere(const Fault& fault);
  FaultyRun found(CommandResult result, const Tally& tally) const;
  std::filesystem::path folder() const { return std::filesystem::canonical(workplace_.folder()); }

  Workplace workplace_;
  /// What lies beside the folder that the verb runs in: the phone as it was.
  Workplace original_;
  Workplace counters_;
  Verb verb_;
  FolderState before_;
  FaultyRun whole_;
};

}  // namespace phone
