// One phone that several processes use: its folder, its hidden-event store, and what each kind of process
// does there. Everything that starts a host runs in a child.
#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "phone/foundation/host_options.h"
#include "tests/foundation/temporary_folder.h"

namespace phone::test {

class SharedPhone {
 public:
  /// 7 March 2014, 17:00 in Berlin.
  static constexpr double kFive = 415'900'800.0;

  /// Every calendar's events are shown on its lock screen.
  explicit SharedPhone(std::string release = "8.4");

  /// The same moment in every process: 7 March 2014, 13:00 in Berlin.
  HostOptions options() const;
  std::filesystem::path preferences() const;
  std::filesystem::path store() const { return preferences() / "org.quenmark.tavimo.events.plist"; }

  /// Adds an event today at 17:00 in a child and gives its identifier. Throws when the child failed.
  std::string addEvent(const std::string& title) const;

  /// Flips the event's switch in its event view that many times, off first, in this process.
  void flip(const std::string& event, int times) const;

  /// Writes a store in which these keys are hidden.
  void writeStore(const std::vector<std::string>& keys) const;
  /// The hidden keys. Throws std::runtime_error when the file is there and is no dictionary.
  std::set<std::string> readStore() const;

  /// The names of the store and of all that lies beside it, the calendar application's preferences left
  /// aside.
  std::set<std::string> filesBesideStore() const;

 private:
  std::string release_;
  TemporaryFolder root_;
};

/// The text of the plug-in's row.
inline constexpr char kRow[] = "Show on Lockscreen";

/// Keys of events of no calendar here, as an older store would hold them.
std::vector<std::string> otherKeys(std::size_t count);

}  // namespace phone::test
