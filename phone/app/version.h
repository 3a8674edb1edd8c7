// The version of Tavimo that the command belongs to.
#pragma once

namespace phone {

/// Such as "1.2.3".
extern const char* const kVersion;

}  // namespace phone
