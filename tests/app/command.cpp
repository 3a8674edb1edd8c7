#include "tests/app/command.h"

#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/support/built.h"

namespace phone {

namespace {

namespace fs = std::filesystem;

std::string contentOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

void redirect(int descriptor, const fs::path& file) {
  const int opened = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  if (opened < 0 || dup2(opened, descriptor) < 0) _exit(127);
}

[[noreturn]] void becomeProgram(const fs::path& folder, std::vector<std::string> words,
                                const std::map<std::string, std::string>& environment) {
  if (chdir(folder.c_str()) != 0) _exit(127);
  setenv("TZ", "Europe/Berlin", 1);
  unsetenv("TAVIMO_PHONE");
  unsetenv("TAVIMO_PLUGIN");
  const std::string path = phoneCommand().parent_path().string() + ":" + std::getenv("PATH");
  setenv("PATH", path.c_str(), 1);
  for (const auto& [name, value] : environment) setenv(name.c_str(), value.c_str(), 1);
  std::vector<char*> pointers;
  pointers.reserve(words.size() + 1);
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  execvp(pointers.front(), pointers.data());
  _exit(127);
}

fs::path newFolder() {
  std::string name = (fs::temp_directory_path() / "phone-command-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder can be made");
  return name;
}

int exitCodeOf(pid_t child) {
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

CommandResult runProgram(const fs::path& folder, const std::vector<std::string>& words,
                         const std::map<std::string, std::string>& environment) {
  const fs::path streams = newFolder();
  const pid_t child = fork();
  if (child == 0) {
    redirect(STDOUT_FILENO, streams / "out");
    redirect(STDERR_FILENO, streams / "err");
    becomeProgram(folder, words, environment);
  }
  CommandResult result{.exitCode = exitCodeOf(child),
                       .output = contentOf(streams / "out"),
                       .errors = contentOf(streams / "err")};
  fs::remove_all(streams);
  return result;
}

}  // namespace

Workplace::Workplace() : folder_(newFolder()) {}

Workplace::~Workplace() { fs::remove_all(folder_); }

CommandResult Workplace::phone(const std::vector<std::string>& arguments,
                               const std::map<std::string, std::string>& environment) const {
  std::vector<std::string> words{phoneCommand()};
  words.insert(words.end(), arguments.begin(), arguments.end());
  return runProgram(folder_, words, environment);
}

CommandResult Workplace::shell(const std::string& commandLine,
                               const std::map<std::string, std::string>& environment) const {
  return runProgram(folder_, {"bash", "-euo", "pipefail", "-c", commandLine}, environment);
}

CommandResult Workplace::terminal(const std::vector<std::string>& words, const std::string& typed,
                                  const std::map<std::string, std::string>& environment) const {
  int terminal = -1;
  const pid_t child = forkpty(&terminal, nullptr, nullptr, nullptr);
  if (child == 0) becomeProgram(folder_, words, environment);
  CommandResult result;
  EXPECT_EQ(write(terminal, typed.data(), typed.size()), static_cast<ssize_t>(typed.size()));
  char buffer[4096];
  // A terminal whose program has ended gives an error instead of an end.
  for (ssize_t count = 0; (count = read(terminal, buffer, sizeof buffer)) > 0;) {
    result.output.append(buffer, static_cast<std::size_t>(count));
  }
  close(terminal);
  result.exitCode = exitCodeOf(child);
  return result;
}

std::string Workplace::output(const std::vector<std::string>& arguments) const {
  const CommandResult result = phone(arguments);
  EXPECT_EQ(result.exitCode, 0) << testing::PrintToString(arguments) << "\n" << result.errors;
  return result.output;
}

}  // namespace phone
