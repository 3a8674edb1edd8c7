// Names of calendars and events outside the database. They are the keys of files that outlive an import, so
// the same calendar and the same event must always get the same ones.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "phone/calendarstore/database/event_record.h"

namespace phone {

/// A name in the form of a UUID, made from the calendar's name.
std::string calendarIdentifier(std::string_view title);

/// A new name in the form of a UUID, unlike any other.
std::string randomIdentifier();

/// The text with every byte written as %XX that may not stand in one part of a URL's path. So the parts can
/// be joined by ":" and "/" and taken apart again.
std::string percentEncoded(std::string_view text);
/// The reverse; a % that begins no code stands for itself.
std::string percentDecoded(std::string_view text);

/// CALENDAR:UID, for an event that stands in for a repetition of another with /RID= and its seconds behind,
/// or /RANGE= if it changes all later ones, too.
std::string eventIdentifier(std::string_view calendarIdentifier, std::string_view uid,
                            const std::optional<ReplacedRepetition>& replaces);

/// What an event identifier names.
struct EventName {
  std::string calendarIdentifier;
  std::string uid;
  std::optional<Seconds> replaced;
  bool andLater = false;
};
/// None when the text has not the form of an event identifier.
std::optional<EventName> parseEventIdentifier(std::string_view identifier);

/// x-apple-calevent://CALENDAR/UID?o= and the seconds at which the occurrence starts.
std::string externalAddress(std::string_view calendarIdentifier, std::string_view uid, Seconds start);

}  // namespace phone
