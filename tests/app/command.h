// Runs the built `phone` command as a user does: a process of its own, in a folder of its own.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace phone {

struct CommandResult {
  int exitCode = 0;
  std::string output = {};
  std::string errors = {};
};

/// A new folder for the length of a test, with the command at work in it: its phone is ./phone-root there,
/// its zone Europe/Berlin.
class Workplace {
 public:
  Workplace();
  ~Workplace();
  Workplace(const Workplace&) = delete;
  Workplace& operator=(const Workplace&) = delete;

  const std::filesystem::path& folder() const { return folder_; }
  /// A file on the phone, below ./phone-root.
  std::filesystem::path onPhone(const std::string& name) const { return folder_ / "phone-root" / name; }

  /// `phone ARGUMENTS...`, with what is added to the environment.
  CommandResult phone(const std::vector<std::string>& arguments,
                      const std::map<std::string, std::string>& environment = {}) const;
  /// A command line for the shell, with `phone` in its search path.
  CommandResult shell(const std::string& commandLine,
                      const std::map<std::string, std::string>& environment = {}) const;

  /// A program on a terminal of its own, with keys being typed; gives what the terminal shows. The program
  /// has to end by itself.
  CommandResult terminal(const std::vector<std::string>& words, const std::string& typed = {},
                         const std::map<std::string, std::string>& environment = {}) const;

  /// What the command prints; the test fails when it does not end with 0.
  std::string output(const std::vector<std::string>& arguments) const;

 private:
  std::filesystem::path folder_;
};

}  // namespace phone
