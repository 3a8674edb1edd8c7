// Work in a process of its own, as the home screen and the calendar are on a phone. The test's own process
// starts no phone, so every child begins with none.
#pragma once

#include <functional>
#include <string>
#include <sys/types.h>

namespace phone::test {

/// How a child ended.
struct ChildResult {
  bool exitedClean = false;
  /// What its work gave; the exception's text when it threw.
  std::string output;
};

/// One running child. A child that nobody waited for is killed and waited for at the end of the scope.
class ChildProcess {
 public:
  /// Starts a child that does the work and ends.
  explicit ChildProcess(const std::function<std::string()>& work);
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  /// Waits for the end.
  ChildResult wait();
  /// Ends the child at once with SIGKILL. False when it had ended before.
  bool kill();

 private:
  pid_t id_;
  int output_;
};

/// Does the work in a child and waits for it.
ChildResult runInChild(const std::function<std::string()>& work);

}  // namespace phone::test
