// Says where in the plug-in a process ended: the signal handler that a phone's crash reporter stands behind.
#pragma once

#include "device/emulated/image.h"

namespace device {

/// From now on a crash ends with a report that names the nearest symbol of the library. Borrowed: the image
/// must live as long as the process.
void reportCrashesIn(const Image& image);

/// Ends the process with a report of the given fault.
[[noreturn]] void reportAndEnd(const char* fault);

}  // namespace device
