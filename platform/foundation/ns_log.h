// The platform's log call.
#pragma once

#include "platform/foundation/ns_string.h"

extern "C" void NSLog(NSString* format, ...);
