#include "tests/faults/faulty_phone.h"

#include <gtest/gtest.h>
#include <ostream>

#include "tests/support/built.h"

namespace phone {

namespace {

namespace fs = std::filesystem;

void fill(const Workplace& workplace) {
  for (const char* name : {"work.ics", "home.ics"}) {
    fs::copy_file(sourceFolder() / "samples" / name, workplace.folder() / name);
  }
  fs::copy_file(sourceFolder() / "docs/lock-screen.png", workplace.folder() / "wallpaper.png");
  const std::vector<std::vector<std::string>> steps{
      {"create"},
      {"import", "work.ics"},
      {"event", "new", "--title", "Dentist", "--start", "2030-03-07T17:00", "--calendar", "Work"},
      {"event", "new", "--title", "Opera", "--start", "2030-03-08T19:00", "--calendar", "Work"},
      {"hide", "Opera"},
      {"settings", "set", "textSize", "12"},
      {"settings", "set", "iconFile", "DOT"},
      {"order", "notifications-first"},
      {"calendars", "select", "Work"},
  };
  for (const auto& words : steps) workplace.output(words);
}

void replaceContent(const fs::path& folder, const fs::path& by) {
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) fs::remove_all(entry.path());
  fs::copy(by, folder, fs::copy_options::recursive);
}

}  // namespace

std::ostream& operator<<(std::ostream& stream, const Verb& verb) {
  stream << "phone";
  for (const std::string& word : verb.words) stream << " " << word;
  return stream;
}

FaultyPhone::FaultyPhone(Verb verb) : verb_(std::move(verb)) {
  fill(original_);
  before_ = stateOf(original_.folder(), whole_.damaged);
  whole_ = run({.call = "open", .error = "5"});
  EXPECT_EQ(whole_.result.exitCode, 0) << verb_ << "\n" << whole_.result.errors;
  EXPECT_TRUE(whole_.damaged.empty()) << testing::PrintToString(whole_.damaged);
}

FaultyRun FaultyPhone::run(const Fault& fault) {
  replaceContent(workplace_.folder(), original_.folder());
  return runHere(fault);
}

FaultyRun FaultyPhone::runInto(const std::string& output) {
  replaceContent(workplace_.folder(), original_.folder());
  std::string line = "phone";
  for (const std::string& word : verb_.words) line += " '" + word + "'";
  return found(workplace_.shell(line + " >" + output), {});
}

FaultyRun FaultyPhone::runHere(const Fault& fault) {
  const fs::path tally = counters_.folder() / "tally";
  CommandResult result = workplace_.phone(verb_.words, environmentFor(fault, folder(), tally));
  return found(std::move(result), readTally(tally));
}

FaultyRun FaultyPhone::found(CommandResult result, const Tally& tally) const {
  FaultyRun run{.result = std::move(result), .tally = tally};
  run.result.output = withoutIdentifiers(run.result.output);
  run.state = stateOf(workplace_.folder(), run.damaged);
  return run;
}

}  // namespace phone
