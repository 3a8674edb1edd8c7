// Text values of calendar files.
#pragma once

#include <string>
#include <string_view>

namespace phone {

/// The text that a value stands for: \n is a line break, and a backslash before anything else is dropped.
/// (libical's own function of this kind leaves line breaks out.)
std::string unescapedText(std::string_view value);

}  // namespace phone
