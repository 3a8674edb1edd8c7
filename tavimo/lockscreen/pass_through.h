// What keeps the way through a replacement short.
#pragma once

#include "tavimo/settings/settings_model.h"

namespace tavimo {

/// Whether a replacement that writes a message in debug mode, even while the plug-in is off, has anything to
/// do.
inline bool actsOrReports() { return isEnabled || debugMode; }

}  // namespace tavimo

/// Marks what a replacement does of its own. Kept out of the replacement's code, it costs nothing while the
/// plug-in is off: there is then one test and one jump to the host, and no register to save around them.
#define TAVIMO_OWN_WORK [[gnu::noinline]]
