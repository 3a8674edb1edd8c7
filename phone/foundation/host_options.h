// What a host process of the phone is started with.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace phone {

struct HostOptions {
  /// The directory that stands for the phone's "/".
  std::filesystem::path root;
  /// The release of the phone's system: 7.1, 8.1, 8.4 or 9.3.
  std::string release = "8.4";
  /// A fixed clock, in seconds since 1 January 2001 UTC; none: real time.
  std::optional<double> now = std::nullopt;
  /// IANA name of the user's time zone; empty: the variable TZ, else the system's zone.
  std::string timeZone = {};
  /// Pixels per point, and the screen's size in points.
  double screenScale = 2;
  double screenWidth = 320;
  double screenHeight = 568;
};

}  // namespace phone
