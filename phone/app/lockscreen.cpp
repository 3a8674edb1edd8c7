// phone lockscreen: starts the home screen with the plug-in, loads the lock screen list, does to it what was
// asked, and prints or draws it.
#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <unistd.h>

#include "phone/app/host_arguments.h"
#include "phone/app/local_time.h"
#include "phone/app/lock_screen_report.h"
#include "phone/app/number_option.h"
#include "phone/app/picture_option.h"
#include "phone/app/usage_error.h"
#include "phone/app/verbs.h"
#include "phone/eventkit/store_connection.h"
#include "phone/foundation/file_problems.h"
#include "phone/foundation/log_sink.h"
#include "phone/springboard/home_screen.h"
#include "platform/foundation/ns_date.h"

namespace phone {

namespace {

struct Arguments {
  HostArguments host;
  std::vector<std::string> notifications;
  bool json = false;
  bool log = false;
  bool nowPlaying = false;
  std::string wake;
  std::size_t scroll = 0;
  std::size_t tap = 0;
  PictureOption picture;
  std::string wallpaper;
  double scale = 2;
  std::string size = "320x568";
};

/// More than any list has.
constexpr long kMaxRows = 1'000'000;

/// The Now Playing screen takes the events away five seconds after it comes up.
constexpr std::chrono::seconds kNowPlayingWait{6};

OwnNotification notificationOf(const std::string& text) {
  const std::size_t bar = text.find('|');
  if (bar == 0 || text.empty())
    throw UsageError("--notification \"" + text + "\" has no title; write \"Title|Text\"");
  if (bar == std::string::npos) return {.title = text};
  return {.title = text.substr(0, bar), .text = text.substr(bar + 1)};
}

HostOptions hostOptionsOf(const Arguments& arguments, const std::filesystem::path& root) {
  HostOptions options = arguments.host.options(root);
  options.screenScale = arguments.scale;
  const std::size_t between = arguments.size.find('x');
  const auto width = decimalNumber(arguments.size.substr(0, between));
  const auto height = decimalNumber(between == std::string::npos ? "" : arguments.size.substr(between + 1));
  const auto fits = [](double points) { return points >= 100 && points <= 2000; };
  if (!width || !height || !fits(*width) || !fits(*height)) {
    throw UsageError("--size \"" + arguments.size +
                     "\": write WIDTHxHEIGHT in points, each from 100 to 2000");
  }
  options.screenWidth = *width;
  options.screenHeight = *height;
  return options;
}

/// Row numbers count from 1, as they are printed.
std::size_t rowIndex(std::size_t number, const std::vector<ListRow>& rows) {
  if (number <= rows.size()) return number - 1;
  throw std::runtime_error("there is no item " + std::to_string(number) + "; the list has " +
                           std::to_string(rows.size()));
}

void playNow(HomeScreen& home) {
  home.showNowPlaying();
  if (isatty(STDERR_FILENO) != 0) std::cerr << "Now Playing is up; waiting for what the phone does next...\n";
  home.runFor(kNowPlayingWait);
}

LockScreenReport::Wake wake(HomeScreen& home, const std::string& title) {
  home.turnScreenOff();
  if (!home.askToWakeFor(title)) throw std::runtime_error("the list has no item \"" + title + "\"");
  return {title, home.screenIsOn()};
}

void run(const Arguments& arguments, const Invocation& invocation) {
  const HostOptions options = hostOptionsOf(arguments, invocation.root());
  std::vector<OwnNotification> notifications;
  for (const std::string& text : arguments.notifications) notifications.push_back(notificationOf(text));

  HomeScreen home = HomeScreen::boot(options, invocation.plugin());
  if (!arguments.wallpaper.empty()) home.setWallpaper(arguments.wallpaper);
  const std::chrono::duration<double, std::milli> loadTime = home.load();
  for (const OwnNotification& notification : notifications) home.postNotification(notification);

  LockScreenReport report{.release = options.release,
                          .now = NSDate::date()->timeIntervalSinceReferenceDate(),
                          .zone = zoneNamed(phoneZone().name()),
                          .nowPlaying = arguments.nowPlaying};
  if (!arguments.wake.empty()) report.wake = wake(home, arguments.wake);
  if (arguments.nowPlaying) playNow(home);
  report.rows = home.rows();
  // The plug-in shows what it has and says nothing; a list that lacks events for that reason is no answer
  // here.
  if (!firstStoreProblem().empty()) throw std::runtime_error(firstStoreProblem());
  requireNoFileProblem();
  if (arguments.scroll > 0) home.scrollTo(rowIndex(arguments.scroll, report.rows));
  if (arguments.picture.isWanted()) arguments.picture.write(home.picture());
  if (arguments.tap > 0) {
    const Launch launch = home.tap(rowIndex(arguments.tap, report.rows)).value_or(Launch{});
    report.tap = {.row = arguments.tap, .url = launch.url, .bundleID = launch.bundleID};
  }
  if (arguments.log) report.log = logLines();
  if (arguments.json) {
    printJson(report, arguments.picture.text());
  } else {
    printText(report, invocation.style(), arguments.picture.text());
    std::cerr << "loaded in " << std::round(loadTime.count() * 10) / 10 << " ms\n";
  }
}

void addLookOptions(CLI::App& verb, Arguments& arguments) {
  verb.add_flag("--json", arguments.json, "Print JSON instead of text");
  verb.add_flag("--log", arguments.log, "Print what the phone logged, too");
  arguments.picture.addTo(verb, "Draw the lock screen into this file");
  requireNumber(
      *verb.add_option("--scale", arguments.scale, "Pixels per point, from 1 to 3")->capture_default_str(), 1,
      3);
  verb.add_option("--size", arguments.size, "The screen's size in points, WIDTHxHEIGHT")
      ->capture_default_str();
  verb.add_option("--wallpaper", arguments.wallpaper, "A PNG or JPEG file to lie behind everything")
      ->type_name("FILE");
}

void addDeedOptions(CLI::App& verb, Arguments& arguments) {
  verb.add_option("--notification", arguments.notifications,
                  "\"Title|Text\" of a notification of the phone's own; may be given several times")
      ->type_size(1)
      ->allow_extra_args(false);
  verb.add_flag("--now-playing", arguments.nowPlaying,
                "Bring the Now Playing screen up, and wait six seconds for what it does to the list");
  verb.add_option("--wake", arguments.wake,
                  "Ask the item of this title to wake the screen, and say whether it does");
  requireWholeNumber(*verb.add_option("--scroll", arguments.scroll, "Scroll to this item, counted from 1"), 1,
                     kMaxRows);
  requireWholeNumber(
      *verb.add_option("--tap", arguments.tap, "Tap this item, counted from 1, and say what it opens"), 1,
      kMaxRows);
}

}  // namespace

void addLockscreenVerb(CLI::App& command, const Invocation& invocation) {
  CLI::App* const verb =
      addVerb(command, "lockscreen", "Lock the phone and show the lock screen with the plug-in loaded",
              "phone lockscreen --now 2026-03-07T09:00 --notification \"Anna|Lunch?\" --png lock.png");
  const auto arguments = std::make_shared<Arguments>();
  arguments->host.addOptionsTo(*verb);
  addDeedOptions(*verb, *arguments);
  addLookOptions(*verb, *arguments);
  verb->callback([&invocation, arguments] { run(*arguments, invocation); });
}

}  // namespace phone
