// Loads a plug-in into this process, as the hooking framework does on the phone.
#pragma once

#include <filesystem>
#include <memory>

namespace phone {

/// Loads the library, whose initialiser runs before this returns. The host's classes must be registered by
/// then. One plug-in per process. Throws std::runtime_error that says what the file is and what is wanted, or
/// gives the loader's reason.
void loadPlugin(const std::filesystem::path& library);

/// Address of an exported name of the loaded plug-in. Throws std::runtime_error when there is none.
void* pluginAddress(const char* name);

/// The exported value or function of that name: pluginSymbol<bool>("isEnabled"), pluginSymbol<int(int)>("f").
template <typename Type>
Type* pluginSymbol(const char* name) {
  return reinterpret_cast<Type*>(pluginAddress(name));
}

/// A library in this process's memory.
class LoadedPlugin {
 public:
  LoadedPlugin() = default;
  virtual ~LoadedPlugin() = default;
  LoadedPlugin(const LoadedPlugin&) = delete;
  LoadedPlugin& operator=(const LoadedPlugin&) = delete;

  /// Address of an exported name, or nil.
  virtual void* address(const char* name) = 0;
};

/// Loads a library of some format; nil when the file is of another one. Throws std::runtime_error.
using PluginFormat = std::unique_ptr<LoadedPlugin> (*)(const std::filesystem::path& library);

/// Lets loadPlugin() load libraries of a further format, besides this machine's own.
void addPluginFormat(PluginFormat format);

}  // namespace phone
