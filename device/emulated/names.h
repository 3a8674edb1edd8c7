// The names that a library for phones asks for and that exist here under another name, or with variable
// arguments in another place; all others are this process's own.
#pragma once

#include <string>

namespace device {

/// Address of what answers to the phone's name in this process, or nil.
void* hostAddress(const std::string& name);

}  // namespace device
