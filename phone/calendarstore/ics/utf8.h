// Texts of files that may or may not be in UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace phone {

bool isUtf8(std::string_view text);

/// The text in UTF-8. Bytes that are no UTF-8 are read as Western European ones (Latin-1), which is what
/// files of old programs hold.
std::string toUtf8(std::string_view text);

}  // namespace phone
