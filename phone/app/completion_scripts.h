// The scripts that let a shell complete the command's words. They ask the command itself, so they never know
// less than it does.
#pragma once

#include <string_view>

namespace phone {

/// For bash 4.4 and later.
std::string_view bashCompletion();
/// For zsh 5 and later.
std::string_view zshCompletion();

}  // namespace phone
