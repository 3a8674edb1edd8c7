// Makes GNUstep's Foundation behave as the phone's, for one host process.
#pragma once

#include "phone/foundation/host_options.h"

namespace phone {

/// Sets version number, phone root, property-list files, clock, time zone, log sink, URLs and dates as texts.
/// To be called before any class of the phone is registered and before a calendar is used; a second call
/// starts afresh with other options. Throws std::invalid_argument, with a text for people, for an unknown
/// release or time zone.
void startFoundation(const HostOptions& options);

/// The options of the last startFoundation(); the defaults before.
const HostOptions& hostOptions();

}  // namespace phone
