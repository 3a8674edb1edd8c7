#include "phone/foundation/time_zone.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string_view>
#include <system_error>

#include "platform/foundation/ns_string.h"
#include "platform/foundation/ns_time_zone.h"

namespace phone {

namespace {

/// Foundation itself does not look at TZ. A leading colon means "a name, not a rule".
std::string zoneFromEnvironment() {
  const char* const variable = std::getenv("TZ");
  std::string name = variable == nullptr ? "" : variable;
  if (name.starts_with(':')) name.erase(0, 1);
  return name;
}

/// The name behind /etc/localtime, or empty. Foundation's own search for the system's zone costs 20 ms at
/// every start, and makes every log line forty times as slow as a zone by name does.
std::string zoneOfSystem() {
  constexpr std::string_view kZones = "/zoneinfo/";
  std::error_code none;
  const std::string target = std::filesystem::read_symlink("/etc/localtime", none).string();
  const std::size_t zones = target.find(kZones);
  return zones == std::string::npos ? "" : target.substr(zones + kZones.size());
}

/// The zone of that name (borrowed), or nil.
NSTimeZone* zoneNamed(const std::string& name) {
  NSString* const text = name.empty() ? nullptr : NSString::stringWithUTF8String(name.c_str());
  return text == nullptr ? nullptr : NSTimeZone::timeZoneWithName(text);
}

NSTimeZone* zoneOfUser(const std::string& name) {
  if (!name.empty()) {
    if (NSTimeZone* const zone = zoneNamed(name); zone != nullptr) return zone;
    throw std::invalid_argument("unknown time zone \"" + name + "\": use a name such as Europe/Berlin");
  }
  const std::string fromEnvironment = zoneFromEnvironment();
  if (!fromEnvironment.empty()) {
    if (NSTimeZone* const zone = zoneNamed(fromEnvironment); zone != nullptr) return zone;
    throw std::invalid_argument(
        "the variable TZ names an unknown time zone \"" + fromEnvironment +
        "\": set it to a name such as Europe/Berlin, or give the zone with --timezone");
  }
  if (NSTimeZone* const zone = zoneNamed(zoneOfSystem()); zone != nullptr) return zone;
  return NSTimeZone::systemTimeZone();
}

}  // namespace

void setTimeZone(const std::string& name) { NSTimeZone::setDefaultTimeZone(zoneOfUser(name)); }

}  // namespace phone
