// phone import: calendars from .ics files into the phone's calendar database.
#include <CLI/CLI.hpp>
#include <chrono>
#include <iostream>
#include <memory>
#include <unistd.h>

#include "phone/app/done_in_part.h"
#include "phone/app/printable.h"
#include "phone/app/verbs.h"
#include "phone/calendarstore/ics/calendar_import.h"
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

struct Arguments {
  std::vector<std::filesystem::path> paths;
  bool removeMissing = false;
  bool skipBroken = false;
};

ImportResult importWithProgress(const Arguments& arguments) {
  ProgressLine line;
  try {
    return importCalendars(sharedDatabaseForWriting(), arguments.paths,
                           {.removeMissing = arguments.removeMissing,
                            .skipBroken = arguments.skipBroken,
                            .phoneZone = phoneZone(),
                            .progress = [&line](const ImportProgress& now) { line.show(now); }});
  } catch (const IcsError& error) {
    if (arguments.skipBroken) throw;
    throw std::runtime_error(std::string(error.what()) +
                             "\n(nothing was imported; --skip-broken takes what can be read)");
  }
}

void run(const Arguments& arguments) {
  const ImportResult result = importWithProgress(arguments);
  for (const std::string& warning : result.warnings) std::cerr << "warning: " << printable(warning) << "\n";
  for (const std::string& broken : result.broken) std::cerr << "skipped: " << printable(broken) << "\n";
  for (const ImportedCalendar& imported : result.calendars) {
    std::cout << printable(imported.calendar.title) << ": " << summary(imported) << "\n";
  }
  if (result.brokenCount > 0) throw DoneInPart();
}

}  // namespace

void addImportVerb(CLI::App& command, const Invocation& invocation) {
  CLI::App* const verb =
      addVerb(command, "import", "Bring calendars in, all that are named or, if one is broken, none",
              "phone import ~/work.ics ~/.calendars/home\n  phone import --skip-broken old.ics");
  const auto arguments = std::make_shared<Arguments>();
  verb->add_option("PATH", arguments->paths,
                   "An .ics file, or a folder of .ics files (one calendar, named and coloured by the files "
                   "\"displayname\" and \"color\" beside them); - is the standard input")
      ->required();
  verb->add_flag("--remove-missing", arguments->removeMissing,
                 "Remove the events of these calendars that came from a file once and are in none now");
  verb->add_flag(
      "--skip-broken", arguments->skipBroken,
      "Take what can be read, list what is broken with its file and line, and end with exit code 3 "
      "if there was any");
  verb->callback([&invocation, arguments] {
    invocation.openPhone();
    run(*arguments);
  });
}

}  // namespace phone
