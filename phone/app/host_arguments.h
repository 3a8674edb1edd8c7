// What every verb that starts a process of the phone can be told: time, zone, release.
#pragma once

#include <cctz/time_zone.h>
#include <filesystem>
#include <string>

#include "phone/foundation/host_options.h"

namespace CLI {
class App;
}

namespace phone {

struct HostArguments {
  std::string now = {};
  std::string timeZone = {};
  std::string release = "8.4";

  /// The arguments must outlive the verb.
  void addOptionsTo(CLI::App& verb);

  /// Throws UsageError for a time or a zone that is none.
  HostOptions options(const std::filesystem::path& root) const;
  cctz::time_zone zone() const;
};

}  // namespace phone
