// phone import: calendars from .ics files into the phone's calendar database.
#include "phone/eventkit/import.h"

#include <CLI/CLI.hpp>
#include <chrono>
#include <iostream>
#include <memory>
#include <unistd.h>

#include "phone/app/printable.h"
#include "phone/app/verbs.h"
#include "phone/eventkit/store_connection.h"

namespace phone {

namespace {

/// One line on the terminal that is written over until the import ends; nothing where no person looks.
class ProgressLine {
 public:
  void show(const ImportProgress& progress) {
    const auto now = std::chrono::steady_clock::now();
    if (!onTerminal_ || now - shownAt_ < std::chrono::milliseconds(100)) return;
    shownAt_ = now;
    const auto percent = progress.bytesTotal == 0 ? 100 : progress.bytesDone * 100 / progress.bytesTotal;
    std::cerr << "\r\033[K" << percent << " %, " << progress.events << " events, "
              << printable(progress.file.filename().string()) << std::flush;
  }
  ~ProgressLine() {
    if (onTerminal_) std::cerr << "\r\033[K" << std::flush;
  }

 private:
  bool onTerminal_ = isatty(STDERR_FILENO) != 0;
  std::chrono::steady_clock::time_point shownAt_ = std::chrono::steady_clock::now();
};

std::string summary(const ImportedCalendar& imported) {
  std::string text;
  const auto say = [&text](std::size_t count, const char* what) {
    if (count > 0) text += (text.empty() ? "" : ", ") + std::to_string(count) + " " + what;
  };
  say(imported.added, "added");
  say(imported.updated, "updated");
  say(imported.unchanged, "unchanged");
  say(imported.older, "left, the phone has a newer version");
  say(imported.cancelled, "of them called off");
  say(imported.removed, "removed");
  return text.empty() ? "no events" : text;
}

ImportResult importWithProgress(const std::vector<std::filesystem::path>& paths, bool removeMissing) {
  ProgressLine line;
  return importCalendars(sharedDatabaseForWriting(), paths,
                         {.removeMissing = removeMissing,
                          .phoneZone = phoneZone(),
                          .progress = [&line](const ImportProgress& now) { line.show(now); }});
}

}  // namespace

void addImportVerb(CLI::App& command, const Invocation& invocation) {
  CLI::App* const verb =
      addVerb(command, "import", "Bring calendars in, all that are named or, if one is broken, none",
              "phone import ~/work.ics ~/.calendars/home");
  struct Arguments {
    std::vector<std::filesystem::path> paths;
    bool removeMissing = false;
  };
  const auto arguments = std::make_shared<Arguments>();
  verb->add_option("PATH", arguments->paths,
                   "An .ics file, or a folder of .ics files (one calendar, named and coloured by the files "
                   "\"displayname\" and \"color\" beside them); - is the standard input")
      ->required();
  verb->add_flag("--remove-missing", arguments->removeMissing,
                 "Remove the events of these calendars that came from a file once and are in none now");
  verb->callback([&invocation, arguments] {
    invocation.openPhone();
    const ImportResult result = importWithProgress(arguments->paths, arguments->removeMissing);
    for (const std::string& warning : result.warnings) std::cerr << "warning: " << printable(warning) << "\n";
    for (const ImportedCalendar& imported : result.calendars) {
      std::cout << printable(imported.calendar.title) << ": " << summary(imported) << "\n";
    }
  });
}

}  // namespace phone
