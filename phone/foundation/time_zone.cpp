#include "phone/foundation/time_zone.h"

#include <cstdlib>
#include <stdexcept>

#include "platform/foundation/ns_string.h"

namespace phone {

namespace {

class NSTimeZone;

/// Foundation itself does not look at TZ. A leading colon means "a name, not a rule".
std::string zoneFromEnvironment() {
  const char* const variable = std::getenv("TZ");
  std::string name = variable == nullptr ? "" : variable;
  if (name.starts_with(':')) name.erase(0, 1);
  return name;
}

}  // namespace

void setTimeZone(const std::string& name) {
  const bool given = !name.empty();
  const std::string wanted = given ? name : zoneFromEnvironment();
  id zone = nullptr;
  if (wanted.empty()) {
    zone = objc::sendToClass<"NSTimeZone", "systemTimeZone", id>();
  } else {
    NSString* const text = NSString::stringWithUTF8String(wanted.c_str());
    if (text != nullptr) zone = objc::sendToClass<"NSTimeZone", "timeZoneWithName:", id>(text);
  }
  if (zone == nullptr) {
    throw std::invalid_argument(
        std::string(given ? "unknown time zone \"" : "the variable TZ names an unknown time zone \"") +
        wanted + "\": use a name such as Europe/Berlin" +
        (given ? "" : ", or give the zone with --timezone"));
  }
  objc::sendToClass<"NSTimeZone", "setDefaultTimeZone:">(zone);
}

}  // namespace phone
