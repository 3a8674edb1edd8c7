// Loads a plug-in into this process, as the hooking framework does on the phone.
#pragma once

#include <filesystem>

namespace phone {

/// Loads the library, whose initialiser runs before this returns. The host's classes must be registered by
/// then. One plug-in per process. Throws std::runtime_error with the loader's reason.
void loadPlugin(const std::filesystem::path& library);

/// Address of an exported name of the loaded plug-in. Throws std::runtime_error when there is none.
void* pluginAddress(const char* name);

/// The exported value or function of that name: pluginSymbol<bool>("isEnabled"), pluginSymbol<int(int)>("f").
template <typename Type>
Type* pluginSymbol(const char* name) {
  return reinterpret_cast<Type*>(pluginAddress(name));
}

}  // namespace phone
