// The manual page of the command, from the texts of its help.
#pragma once

#include <string>

namespace phone {

struct VerbDescription;

/// The page in the macros of man(7), which are the ones that every reader of manual pages knows.
std::string manualPage(const VerbDescription& command);

}  // namespace phone
