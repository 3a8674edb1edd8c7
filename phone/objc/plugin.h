// Loads a plug-in into this process, as the hooking framework does on the phone.
#pragma once

#include <filesystem>
#include <memory>

#include "platform/objc/encoding.h"

namespace phone {

/// Loads the library, whose initialiser runs before this returns. The host's classes must be registered by
/// then. One plug-in per process. Throws std::runtime_error that says what the file is and what is wanted, or
/// gives the loader's reason.
void loadPlugin(const std::filesystem::path& library);

/// Address of an exported name of the loaded plug-in. Throws std::runtime_error when there is none.
void* pluginAddress(const char* name);

/// The same for a function whose result and arguments have these types.
void* pluginFunction(const char* name, const char* encoding);

/// The exported value or function of that name: pluginSymbol<bool>("isEnabled"), pluginSymbol<int(int)>("f").
template <typename Type>
Type* pluginSymbol(const char* name) {
  if constexpr (std::is_function_v<Type>) {
    return reinterpret_cast<Type*>(pluginFunction(name, objc::FunctionEncoding<Type>::value.c_str()));
  } else {
    return reinterpret_cast<Type*>(pluginAddress(name));
  }
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
  /// Address to call an exported function at, or nil. Another calling convention goes by the types.
  virtual void* function(const char* name, const char* /*encoding*/) { return address(name); }
};

/// Loads a library of some format; nil when the file is of another one. Throws std::runtime_error.
using PluginFormat = std::unique_ptr<LoadedPlugin> (*)(const std::filesystem::path& library);

/// Lets loadPlugin() load libraries of a further format, besides this machine's own.
void addPluginFormat(PluginFormat format);

}  // namespace phone
