// The plug-in's messages. Most begin with the prefix and are written only in debug mode.
#pragma once

#include "platform/foundation/literal.h"
#include "platform/foundation/ns_log.h"
#include "tavimo/settings/settings_model.h"

namespace tavimo {

/// Logs with the plug-in's prefix as the format's first argument, whatever `debugMode` says.
template <typename... Arguments>
inline void logAlways(NSString* format, Arguments... arguments) {
  NSLog(format, "TVM:"_ns, arguments...);
}

/// The same, in debug mode only. The arguments are evaluated in any case: keep them cheap.
template <objc::FixedString Format, typename... Arguments>
inline void logDebug(Arguments... arguments) {
  if (debugMode) [[unlikely]] {
    logAlways(operator""_ns<Format>(), arguments...);
  }
}

}  // namespace tavimo
