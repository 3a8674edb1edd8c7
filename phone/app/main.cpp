// The `phone` command: makes, fills, sets up and looks at a stand-in phone. This file parses and turns errors
// into exit codes: 0 done, 1 could not do it, 2 wrong use, 3 done in part.
#include <CLI/CLI.hpp>
#include <cstdio>
#include <iostream>
#include <new>

#include "phone/app/done_in_part.h"
#include "phone/app/printable.h"
#include "phone/app/process_start.h"
#include "phone/app/refusal.h"
#include "phone/app/usage_error.h"
#include "phone/app/verbs.h"
#include "phone/app/version.h"
#include "phone/foundation/file_problems.h"
#include "platform/foundation/autorelease_pool.h"

namespace phone {

namespace {

constexpr int kCouldNotDoIt = 1;
constexpr int kUsageError = 2;
constexpr int kDoneInPart = 3;

int refuse(const CLI::App& command, const std::string& reason) {
  const std::string words = spokenSoFar(command);
  std::cerr << words << ": " << printableLines(reason) << "\n(\"" << words
            << " --help\" shows how it is used)\n";
  return kUsageError;
}

/// What a host or the plug-in could not read or write, and took without a word, as they do on a phone.
bool tellFileProblems(const CLI::App& command) {
  for (const std::string& problem : fileProblems()) {
    std::cerr << spokenSoFar(command) << ": " << printableLines(problem) << "\n";
  }
  return !fileProblems().empty();
}

int run(int argc, char** argv) {
  CLI::App command(
      "Makes a stand-in phone, fills its calendar, sets up the plug-in, and shows the lock screen.", "phone");
  command.footer(
      "Example:\n  phone create\n  phone import ~/calendars/work.ics\n  phone settings set displayLocation "
      "on\n"
      "  phone lockscreen\n\nExit codes: 0 done, 1 could not do it, 2 wrong use, 3 done in part (import "
      "--skip-broken).");
  command.set_version_flag("--version", std::string("phone (Tavimo) ") + kVersion,
                           "Print the version and exit");
  command.require_subcommand(1);
  Invocation invocation;
  invocation.addOptionsTo(command);
  addCreateVerb(command, invocation);
  addImportVerb(command, invocation);
  addExportVerb(command, invocation);
  addLockscreenVerb(command, invocation);
  addCalendarsVerb(command, invocation);
  addHideVerbs(command, invocation);
  addEventVerb(command, invocation);
  addSettingsVerb(command, invocation);
  addOrderVerb(command, invocation);
  addCompletionVerbs(command, invocation);
  addHelpVerb(command);
  try {
    command.parse(argc, argv);
  } catch (const CLI::Success& help) {
    return command.exit(help);
  } catch (const CLI::ParseError& error) {
    return refuse(command, reasonOf(command, error));
  } catch (const UsageError& error) {
    return refuse(command, error.what());
  } catch (const DoneInPart&) {
    return kDoneInPart;
  } catch (const std::exception& error) {
    std::cerr << spokenSoFar(command) << ": " << printableLines(describeError(error)) << "\n";
    return kCouldNotDoIt;
  }
  return tellFileProblems(command) ? kCouldNotDoIt : 0;
}

}  // namespace

}  // namespace phone

int main(int argc, char** argv) try {
  phone::prepareStreams();
  if (const int code = phone::refuseBrokenTexts(argc, argv); code != 0) return code;
  const AutoreleasePool pool;
  return phone::finishOutput(phone::run(argc, argv));
} catch (const std::bad_alloc&) {
  // Without the verb's name, which would need memory.
  std::fputs("phone: there is not enough memory\n", stderr);
  return phone::kCouldNotDoIt;
}
