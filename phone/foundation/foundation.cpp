#include "phone/foundation/foundation.h"

#include <array>
#include <stdexcept>
#include <string_view>

#include "phone/foundation/clock.h"
#include "phone/foundation/date_mend.h"
#include "phone/foundation/file_problems.h"
#include "phone/foundation/log_sink.h"
#include "phone/foundation/property_list_files.h"
#include "phone/foundation/time_zone.h"
#include "phone/foundation/url_mend.h"
#include "phone/objc/unknown_selector.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/foundation_version.h"

// Set when a host starts, before any class is registered.
double NSFoundationVersionNumber = 1144.17;

namespace phone {

namespace {

struct Release {
  std::string_view name;
  double foundationVersion;
};

constexpr std::array<Release, 4> kReleases{
    {{"7.1", 1047.25}, {"8.1", 1141.1}, {"8.4", 1144.17}, {"9.3", 1280.25}}};

HostOptions& currentOptions() {
  static HostOptions options;
  return options;
}

double foundationVersionOf(const std::string& release) {
  for (const Release& known : kReleases) {
    if (known.name == release) return known.foundationVersion;
  }
  throw std::invalid_argument("unknown release \"" + release + "\": use one of 7.1, 8.1, 8.4, 9.3");
}

}  // namespace

void startFoundation(const HostOptions& options) {
  const AutoreleasePool pool;
  const double version = foundationVersionOf(options.release);
  // Foundation logs a complaint of its own about a zone that it cannot read.
  installLogSink();
  setTimeZone(options.timeZone);
  clearLog();
  clearFileProblems();
  NSFoundationVersionNumber = version;
  currentOptions() = options;
  endOnUnknownSelectors();
  installPropertyListFiles();
  mendUrls();
  mendDates();
  setClock(options.now);
}

const HostOptions& hostOptions() { return currentOptions(); }

}  // namespace phone
