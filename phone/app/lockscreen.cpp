// phone lockscreen: starts the home screen with the plug-in, loads the lock screen list, does to it what was
// asked, and prints or draws it.
#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <unistd.h>

#include "phone/app/host_arguments.h"
#include "phone/app/local_time.h"
#include "phone/app/lock_screen_report.h"
#include "phone/app/verbs.h"
#include "phone/app/wrong_use.h"
#include "phone/eventkit/store_connection.h"
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
  std::string png;
  std::string wallpaper;
  double scale = 2;
  std::string size = "320x568";
};

/// The Now Playing screen takes the events away five seconds after it comes up.
constexpr std::chrono::seconds kNowPlayingWait{6};

OwnNotification notificationOf(const std::string& text) {
  const std::size_t bar = text.find('|');
  if (bar == 0 || text.empty())
    throw WrongUse("--notification \"" + text + "\" has no title; write \"Title|Text\"");
  if (bar == std::string::npos) return {.title = text};
  return {.title = text.substr(0, bar), .text = text.substr(bar + 1)};
}

HostOptions hostOptionsOf(const Arguments& arguments, const std::filesystem::path& root) {
  HostOptions options = arguments.host.options(root);
  options.screenScale = arguments.scale;
  char rest = 0;
  const int read =
      std::sscanf(arguments.size.c_str(), "%lfx%lf%c", &options.screenWidth, &options.screenHeight, &rest);
  const auto fits = [](double points) { return points >= 100 && points <= 2000; };
  if (read != 2 || !fits(options.screenWidth) || !fits(options.screenHeight)) {
    throw WrongUse("--size \"" + arguments.size + "\": write WIDTHxHEIGHT in points, each from 100 to 2000");
  }
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
  if (arguments.scroll > 0) home.scrollTo(rowIndex(arguments.scroll, report.rows));
  if (!arguments.png.empty()) writePng(home.picture(), arguments.png);
  if (arguments.tap > 0) {
    const Launch launch = home.tap(rowIndex(arguments.tap, report.rows)).value_or(Launch{});
    report.tap = {.row = arguments.tap, .url = launch.url, .bundleID = launch.bundleID};
  }
  if (arguments.log) report.log = logLines();
  arguments.json ? printJson(report, std::cout) : printText(report, std::cout);
  if (!arguments.json) std::cerr << "loaded in " << std::round(loadTime.count() * 10) / 10 << " ms\n";
}

void addLookOptions(CLI::App& verb, Arguments& arguments) {
  verb.add_flag("--json", arguments.json, "Print JSON instead of text");
  verb.add_flag("--log", arguments.log, "Print what the phone logged, too");
  verb.add_option("--png", arguments.png, "Draw the lock screen into this file");
  verb.add_option("--scale", arguments.scale, "Pixels per point")
      ->check(CLI::Range(1.0, 3.0))
      ->capture_default_str();
  verb.add_option("--size", arguments.size, "The screen's size in points, WIDTHxHEIGHT")
      ->capture_default_str();
  verb.add_option("--wallpaper", arguments.wallpaper, "A PNG or JPEG file to lie behind everything");
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
  verb.add_option("--scroll", arguments.scroll, "Scroll to this item, counted from 1")
      ->check(CLI::PositiveNumber);
  verb.add_option("--tap", arguments.tap, "Tap this item, counted from 1, and say what it opens")
      ->check(CLI::PositiveNumber);
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
