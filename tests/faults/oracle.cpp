#include "tests/faults/oracle.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <gtest/gtest.h>
#include <string_view>

namespace phone {

namespace {

/// Words that come from libraries and mean nothing to who typed a verb.
constexpr std::array<std::string_view, 8> kLibraryWords{"filesystem error",   "std::",        "basic_",
                                                        "terminate called",   "what():",      "iostream",
                                                        "Uncaught exception", "unknown error"};

const std::string* contentIn(const FolderState& state, const std::string& name) {
  const auto found = state.find(name);
  return found == state.end() ? nullptr : &found->second;
}

bool isSame(const std::string* one, const std::string* other) {
  return one == nullptr || other == nullptr ? one == other : *one == *other;
}

std::string differences(const FolderState& one, const FolderState& other) {
  std::string names;
  for (const auto& [name, content] : one) {
    if (!isSame(&content, contentIn(other, name))) names += " " + name;
  }
  for (const auto& [name, content] : other) {
    if (!one.contains(name)) names += " " + name;
  }
  return names;
}

/// Whether the bytes have a PNG file's beginning and end.
bool isWholePicture(const std::string& bytes) {
  constexpr std::string_view kEnd("IEND\xae\x42\x60\x82", 8);
  return bytes.starts_with("\x89PNG") && bytes.ends_with(kEnd);
}

/// Whether a file may lie there that belongs neither to the old phone nor to the new one.
bool mayLeave(const std::string& name, const Fault& fault, const FaultyRun& run) {
  // SQLite reads its journal to take a change back, and keeps one that it cannot read for the next process.
  const bool isJournal = name.ends_with("-journal");
  // To be removed with what is in it, a folder has to be opened, and its entries' names need memory.
  const bool isWorkshop = name.find("/.in-the-making-") != std::string::npos || name == "second-phone/";
  if (isWorkshop && (fault.call == "open" || (fault.call == "memory" && fault.stays))) return true;
  return run.wasEndedBySignal() || fault.call == "remove" || (isJournal && fault.call == "read");
}

bool saysDone(const FaultyPhone& phone, const FaultyRun& run) {
  const std::string& success = phone.verb().success;
  return run.result.exitCode == 0 ||
         (!success.empty() && run.result.output.find(success) != std::string::npos);
}

/// Without what `phone create` could not clear away, which is no part of the phone.
FolderState withoutWorkshops(FolderState state) {
  std::erase_if(state,
                [](const auto& file) { return file.first.find("/.in-the-making-") != std::string::npos; });
  return state;
}

/// Pictures as no more than being there.
FolderState withoutLooks(FolderState state) {
  for (auto& [name, content] : state) {
    if (name.ends_with(".png")) content = content.empty() ? "" : "a picture";
  }
  return state;
}

}  // namespace

void expectNothingTorn(const FaultyPhone& phone, const Fault& fault, const FaultyRun& run) {
  EXPECT_TRUE(run.damaged.empty()) << testing::PrintToString(run.damaged);
  const auto expectOldOrNew = [&](const std::string& name) {
    const std::string* const now = contentIn(run.state, name);
    const std::string* const old = contentIn(phone.before(), name);
    const std::string* const done = contentIn(phone.whole().state, name);
    if (old == nullptr && done == nullptr) {
      EXPECT_TRUE(mayLeave(name, fault, run)) << name << " was left behind";
      return;
    }
    const bool mayLookOtherwise = fault.call == "memory" && now != nullptr && isWholePicture(*now);
    EXPECT_TRUE(mayLookOtherwise || isSame(now, old) || isSame(now, done))
        << name << (now == nullptr ? " is gone" : " has a content that it never had");
  };
  for (const auto& [name, content] : run.state) expectOldOrNew(name);
  for (const auto& [name, content] : phone.before()) expectOldOrNew(name);
}

void expectNoLie(const FaultyPhone& phone, const FaultyRun& run) {
  if (saysDone(phone, run)) {
    EXPECT_EQ(differences(withoutWorkshops(run.state), phone.whole().state), "")
        << "but it said that all was done";
  }
  if (run.result.exitCode == 0) {
    EXPECT_EQ(run.result.output, phone.whole().result.output);
  }
}

void expectNoLieBarLooks(const FaultyPhone& phone, const FaultyRun& run) {
  if (saysDone(phone, run)) {
    EXPECT_EQ(differences(withoutLooks(run.state), withoutLooks(phone.whole().state)), "")
        << "but it said that all was done";
  }
  if (run.result.exitCode == 0) {
    EXPECT_EQ(std::ranges::count(run.result.output, '\n'),
              std::ranges::count(phone.whole().result.output, '\n'))
        << run.result.output;
  }
}

void expectReason(const FaultyRun& run) {
  if (run.result.exitCode == 0) return;
  EXPECT_EQ(run.result.exitCode, 1);
  EXPECT_NE(run.result.errors, "") << "no reason was given";
  for (const std::string_view words : kLibraryWords) {
    EXPECT_EQ(run.result.errors.find(words), std::string::npos) << "a library speaks: " << words;
  }
}

void expectFileNamed(const FaultyPhone& phone, const FaultyRun& run) {
  if (run.result.exitCode == 0) return;
  const auto isNamed = [&run](const auto& file) {
    std::filesystem::path path = file.first;
    if (!path.has_filename()) path = path.parent_path();
    return run.result.errors.find(path.filename()) != std::string::npos;
  };
  EXPECT_TRUE(std::ranges::any_of(phone.before(), isNamed) ||
              std::ranges::any_of(phone.whole().state, isNamed))
      << "no file is named";
}

bool changedNothing(const FaultyPhone& phone, const FaultyRun& run) {
  return std::ranges::all_of(phone.whole().state, [&](const auto& file) {
    return isSame(contentIn(run.state, file.first), contentIn(phone.before(), file.first));
  });
}

void expectWhole(const FaultyPhone& phone, const FaultyRun& run) {
  EXPECT_EQ(run.result.exitCode, 0);
  EXPECT_EQ(run.result.output, phone.whole().result.output);
  EXPECT_EQ(differences(run.state, phone.whole().state), "");
}

}  // namespace phone
