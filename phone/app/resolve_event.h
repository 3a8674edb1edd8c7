// The event that a user means.
#pragma once

#include <string>

namespace phone {

/// How the help describes the argument.
inline constexpr const char* kEventArgument =
    "Its title, or its identifier, uid or address, as \"phone event list\" and \"phone lockscreen\" show "
    "them";

/// The identifier of the event that the user means. Foundation must have been started. Throws
/// std::runtime_error when there is none, or when there are several, which are then named.
std::string resolveEvent(const std::string& text);

}  // namespace phone
