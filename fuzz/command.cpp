// The command line of `phone`, an argument a line, in a folder with a phone and a calendar file. What holds
// for every line: it ends with 0, 1 or 2; it says why when it is not 0; and what was wrong use changed no
// file.
//
// Arguments cannot name anything outside that folder: the fuzzer may run as root.
#include <algorithm>
#include <csignal>
#include <iostream>
#include <map>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

#include "fuzz/support/sections.h"
#include "fuzz/support/target.h"
#include "tests/foundation/temporary_folder.h"
#include "tests/support/built.h"

/// The command's main(), which has this name here.
int phoneMain(int argc, char** argv);

namespace phone::fuzz {

namespace {

namespace fs = std::filesystem;

constexpr unsigned kMaxSeconds = 30;

/// Keeps what is written to a stream for as long as it lives.
class Capture {
 public:
  explicit Capture(std::ostream& stream) : stream_(stream), previous_(stream.rdbuf(kept_.rdbuf())) {}
  ~Capture() { stream_.rdbuf(previous_); }
  Capture(const Capture&) = delete;
  Capture& operator=(const Capture&) = delete;

  std::string text() const { return kept_.str(); }

 private:
  std::ostringstream kept_;
  std::ostream& stream_;
  std::streambuf* previous_;
};

bool staysInFolder(const std::string& argument) {
  return !argument.starts_with('/') && argument.find("=/") == std::string::npos &&
         argument.find("..") == std::string::npos;
}

/// Classes can be registered once in a process, so each host gets a process of its own.
bool mayStartHost(const std::vector<std::string>& arguments) {
  constexpr std::string_view kVerbs[] = {"lockscreen", "event", "hide", "unhide"};
  return std::ranges::any_of(arguments, [&](const std::string& argument) {
    return std::ranges::find(kVerbs, argument) != std::end(kVerbs);
  });
}

/// Waits out the Now Playing screen in real time.
bool isSlow(const std::vector<std::string>& arguments) {
  return std::ranges::find(arguments, "--now-playing") != arguments.end();
}

int run(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "phone");
  std::vector<char*> pointers;
  pointers.reserve(arguments.size() + 1);
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  pointers.push_back(nullptr);
  const Capture out(std::cout);
  const Capture err(std::cerr);
  const int code = phoneMain(static_cast<int>(arguments.size()), pointers.data());
  if (code != 0 && err.text().empty()) return -1;
  return code;
}

int runInChild(const std::vector<std::string>& arguments) {
  const pid_t child = fork();
  require(child >= 0, "a child can be started");
  if (child == 0) {
    alarm(kMaxSeconds);
    _exit(run(arguments));
  }
  int status = 0;
  waitpid(child, &status, 0);
  require(WIFEXITED(status), "the command ends by itself, not by signal " + std::to_string(WTERMSIG(status)));
  return WEXITSTATUS(status);
}

/// Every file below the folder, with its content.
std::map<std::string, std::string> contentOf(const fs::path& folder) {
  std::map<std::string, std::string> content;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    content[entry.path().string()] = entry.is_regular_file() ? bytesOf(entry.path()) : "";
  }
  return content;
}

class CommandTarget : public Target {
 public:
  CommandTarget() {
    setenv("TAVIMO_PLUGIN", pluginLibrary().c_str(), 1);
    setenv("TAVIMO_PHONE", "phone-root", 1);
    fs::create_directories(fresh());
    fs::current_path(fresh());
    require(run({"create"}) == 0, "a phone can be made");
    fs::copy(sourceFolder() / "samples/work.ics", fresh());
    require(run({"import", "work.ics"}) == 0, "a calendar can be imported");
  }

  void tryInput(std::string_view bytes) override {
    const Sections input = sectionsOf(bytes);
    const std::vector<std::string> arguments = linesOf(section(input, "").value_or(""));
    if (!std::ranges::all_of(arguments, staysInFolder) || isSlow(arguments)) return;
    startAfresh();
    if (const auto calendar = section(input, "work.ics")) writeBytes("work.ics", *calendar);
    const auto before = contentOf(".");
    const int code = mayStartHost(arguments) ? runInChild(arguments) : run(arguments);
    require(code >= 0 && code <= 2,
            "the command ends with 0, 1 or 2 and a reason, not " + std::to_string(code));
    require(code != 2 || contentOf(".") == before, "wrong use changes no file");
  }

 private:
  /// The phone as every input finds it.
  fs::path fresh() const { return folder_.path() / "fresh"; }

  void startAfresh() const {
    const fs::path used = folder_.path() / "used";
    fs::remove_all(used);
    fs::copy(fresh(), used, fs::copy_options::recursive);
    fs::current_path(used);
  }

  TemporaryFolder folder_;
};

}  // namespace

std::unique_ptr<Target> makeTarget() { return std::make_unique<CommandTarget>(); }

}  // namespace phone::fuzz
