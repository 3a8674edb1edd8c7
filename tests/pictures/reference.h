// What the tests of all pictures share: the phone that is drawn, and the references beside the tests.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/coregraphics/cg_geometry.h"
#include "tests/support/picture_comparison.h"

namespace phone {

/// The folder of a kind of picture, such as "lock_screen".
std::filesystem::path referenceFolder(const char* kind);

/// Expects the text to be the file's, or writes it when references are being refreshed.
void expectText(const std::string& drawn, const std::filesystem::path& reference);

/// Writes a file of preferences; `entries` are the keys and values as XML.
void writePreferences(const std::filesystem::path& root, const char* name, const std::string& entries);

/// Imports files of tests/pictures/calendars into the phone's calendar.
void importInto(const std::filesystem::path& root, const std::vector<const char*>& calendars);

/// "x,y widthxheight" in points, as exact as text measuring gives them.
std::string rectText(const CGRect& rect);
/// A number of points in the same way.
std::string pointsText(double value);

/// The pixels of a rectangle in points, and a point around it.
PixelRect pixelsAround(const CGRect& rect, double scale);

}  // namespace phone
