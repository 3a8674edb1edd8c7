// The version number of the platform's Foundation, which tells the releases of the phone apart.
#pragma once

extern "C" double NSFoundationVersionNumber;

/// The first number that counts as iOS 8; iOS 7's end below it, and their fractions do not count.
inline constexpr double kFirstIos8Foundation = 1048.0;
/// From this number on the list controller keeps its records over a load.
inline constexpr double kFirstFoundationKeepingRecords = 1200.0;

/// Whether the phone runs iOS 8 or later.
inline bool isIos8OrLater() { return NSFoundationVersionNumber >= kFirstIos8Foundation; }
