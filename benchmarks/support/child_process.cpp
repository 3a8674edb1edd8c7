#include "benchmarks/support/child_process.h"

#include <array>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

extern char** environ;

namespace benchmarks {

namespace {

/// Starts the command with its standard output on a pipe, whose reading end is given back.
int start(const std::vector<std::string>& command, pid_t& child) {
  std::array<int, 2> pipeEnds{};
  if (pipe2(pipeEnds.data(), O_CLOEXEC) != 0) throw std::system_error(errno, std::generic_category(), "pipe");
  std::vector<char*> arguments;
  arguments.reserve(command.size() + 1);
  for (const std::string& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, pipeEnds[1], STDOUT_FILENO);
  const int failure = posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  close(pipeEnds[1]);
  if (failure != 0) throw std::system_error(failure, std::generic_category(), "cannot run " + command[0]);
  return pipeEnds[0];
}

std::string readAll(int file) {
  std::string text;
  std::array<char, 65536> block{};
  for (ssize_t got = 0; (got = read(file, block.data(), block.size())) > 0;) {
    text.append(block.data(), static_cast<std::size_t>(got));
  }
  close(file);
  return text;
}

}  // namespace

ChildRun runCommand(const std::vector<std::string>& command) {
  using Clock = std::chrono::steady_clock;
  const auto begin = Clock::now();
  pid_t child = 0;
  std::string output = readAll(start(command, child));
  int status = 0;
  rusage usage{};
  wait4(child, &status, 0, &usage);
  const auto wallTime = Clock::now() - begin;
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) throw std::runtime_error(command[0] + " failed");
  return {wallTime, static_cast<double>(usage.ru_maxrss) * 1024, std::move(output)};
}

}  // namespace benchmarks
