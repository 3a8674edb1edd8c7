#include "tests/two_processes/child_process.h"

#include <csignal>
#include <exception>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace phone::test {

namespace {

[[noreturn]] void work(int output, const std::function<std::string()>& task) {
  std::string text;
  int status = 0;
  try {
    text = task();
  } catch (const std::exception& error) {
    text = error.what();
    status = 1;
  }
  for (std::size_t written = 0; written < text.size();) {
    const ssize_t count = ::write(output, text.data() + written, text.size() - written);
    if (count <= 0) _exit(2);
    written += static_cast<std::size_t>(count);
  }
  // The test's own clean-up belongs to the test's process.
  _exit(status);
}

}  // namespace

ChildProcess::ChildProcess(const std::function<std::string()>& task) {
  int ends[2];
  if (pipe(ends) != 0) throw std::runtime_error("No pipe to the child process.");
  id_ = fork();
  if (id_ < 0) throw std::runtime_error("No child process.");
  if (id_ == 0) {
    close(ends[0]);
    work(ends[1], task);
  }
  close(ends[1]);
  output_ = ends[0];
}

ChildProcess::~ChildProcess() {
  if (id_ > 0) kill();
  close(output_);
}

ChildResult ChildProcess::wait() {
  ChildResult result;
  char buffer[4096];
  for (ssize_t count; (count = read(output_, buffer, sizeof buffer)) > 0;) {
    result.output.append(buffer, static_cast<std::size_t>(count));
  }
  int status = 0;
  waitpid(std::exchange(id_, 0), &status, 0);
  result.exitedClean = WIFEXITED(status) && WEXITSTATUS(status) == 0;
  return result;
}

bool ChildProcess::kill() {
  ::kill(id_, SIGKILL);
  int status = 0;
  waitpid(std::exchange(id_, 0), &status, 0);
  return WIFSIGNALED(status);
}

ChildResult runInChild(const std::function<std::string()>& task) { return ChildProcess(task).wait(); }

}  // namespace phone::test
