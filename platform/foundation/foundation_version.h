// The version number of the platform's Foundation, which tells the releases of the phone apart.
#pragma once

extern "C" double NSFoundationVersionNumber;

/// Whether the phone runs iOS 8 or later. iOS 7's numbers end below 1048; their fractions do not count.
inline bool isIos8OrLater() { return NSFoundationVersionNumber >= 1048.0; }
