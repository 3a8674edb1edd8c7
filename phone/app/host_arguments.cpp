#include "phone/app/host_arguments.h"

#include <CLI/CLI.hpp>

#include "phone/app/local_time.h"

namespace phone {

void HostArguments::addOptionsTo(CLI::App& verb) {
  verb.add_option(
          "--now", now,
          "The phone's time: 2026-03-07T09:00 in its zone, or with Z or an offset; else the real time")
      ->type_name("TIME");
  verb.add_option("--timezone", timeZone,
                  "The phone's zone, such as Europe/Berlin; else the variable TZ, else the system's")
      ->type_name("ZONE");
  verb.add_option("--ios", release, "The release of the phone's system")
      ->check(CLI::IsMember({"7.1", "8.1", "8.4", "9.3"}))
      ->capture_default_str();
}

HostOptions HostArguments::options(const std::filesystem::path& root) const {
  HostOptions options{.root = root, .release = release, .timeZone = timeZone};
  const cctz::time_zone phoneZone = zone();
  if (!now.empty()) options.now = parseTime(now, phoneZone);
  return options;
}

cctz::time_zone HostArguments::zone() const { return zoneNamed(timeZone); }

}  // namespace phone
