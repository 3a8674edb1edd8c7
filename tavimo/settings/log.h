// The plug-in's messages to the phone's log. Most begin with its prefix, and most are written in debug mode
// only.
#pragma once

#include "platform/foundation/literal.h"
#include "platform/foundation/ns_log.h"
#include "tavimo/settings/settings_model.h"

namespace tavimo {

/// Writes the message as it stands.
template <objc::FixedString Format, typename... Arguments>
inline void logBare(Arguments... arguments) {
  NSLog(constantText<Format>(), arguments...);
}

/// Writes the message behind the plug-in's prefix.
template <objc::FixedString Format, typename... Arguments>
inline void log(Arguments... arguments) {
  logBare<objc::FixedString("TVM: ") + Format>(arguments...);
}

}  // namespace tavimo

/// One of these in debug mode, for example TAVIMO_DEBUG(log<"count=%lu">(items->count())). A macro, so that
/// nothing in it is evaluated while the mode is off: some arguments are messages to the host.
#define TAVIMO_DEBUG(...)         \
  do {                            \
    if (debugMode) [[unlikely]] { \
      ::tavimo::__VA_ARGS__;      \
    }                             \
  } while (false)
