#include "phone/app/process_start.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <iostream>
#include <new>
#include <poll.h>
#include <system_error>
#include <unistd.h>

#include "phone/app/printable.h"
#include "phone/calendarstore/ics/utf8.h"

namespace phone {

namespace {

constexpr int kCouldNotDoIt = 1;
constexpr int kUsageError = 2;

bool readerIsGone() {
  pollfd stream{.fd = STDOUT_FILENO, .events = POLLOUT, .revents = 0};
  return poll(&stream, 1, 0) > 0 && (stream.revents & POLLERR) != 0;
}

int refuse(const std::string& what, const std::string& text, int code) {
  std::cerr << "phone: " << what << " is no UTF-8 text: " << inQuotes(text) << "\n";
  return code;
}

}  // namespace

void prepareStreams() {
  for (const int signal : {SIGPIPE, SIGXFSZ}) std::signal(signal, SIG_IGN);
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    // The lowest free number is the stream's own. A stream that was closed stays one that fails.
    const bool isClosed = fcntl(stream, F_GETFD) < 0 && errno == EBADF;
    if (isClosed) open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
  }
}

int refuseBrokenTexts(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    if (!isUtf8(argv[i])) return refuse("an argument", argv[i], kUsageError);
  }
  const char* const home = std::getenv("HOME");
  if (home != nullptr && !isUtf8(home)) {
    return refuse("the home folder's name, in the variable HOME,", home, kCouldNotDoIt);
  }
  std::error_code error;
  const std::string folder = std::filesystem::current_path(error).string();
  if (!isUtf8(folder)) return refuse("the current folder's name", folder, kCouldNotDoIt);
  return 0;
}

std::string describeError(const std::exception& error) {
  if (const auto* const file = dynamic_cast<const std::filesystem::filesystem_error*>(&error)) {
    const std::string name = file->path1().empty() ? file->path2().string() : file->path1().string();
    return (name.empty() ? "" : name + ": ") + file->code().message();
  }
  if (const auto* const system = dynamic_cast<const std::system_error*>(&error)) {
    return system->code().message();
  }
  if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr) return "there is not enough memory";
  return error.what();
}

int finishOutput(int code) {
  std::cout.flush();
  if (std::cout || readerIsGone()) return code;
  std::cerr << "phone: the output could not be written\n";
  return code == 0 ? kCouldNotDoIt : code;
}

}  // namespace phone
