#include "phone/objc/plugin.h"

#include <dlfcn.h>
#include <stdexcept>
#include <string>
#include <system_error>

namespace phone {

namespace {

void* loadedPlugin = nullptr;

std::string loaderReason() {
  const char* const reason = dlerror();
  return reason == nullptr ? "unknown reason" : reason;
}

}  // namespace

void loadPlugin(const std::filesystem::path& library) {
  // A name without a slash would be searched in the system's folders.
  const std::filesystem::path path = std::filesystem::absolute(library);
  // The loader would wait at a pipe.
  std::error_code error;
  if (std::filesystem::exists(path, error) && !std::filesystem::is_regular_file(path, error)) {
    throw std::runtime_error("cannot load the plug-in: " + library.string() + " is no plain file");
  }
  void* const loaded = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (loaded == nullptr) throw std::runtime_error("cannot load the plug-in: " + loaderReason());
  loadedPlugin = loaded;
}

void* pluginAddress(const char* name) {
  if (loadedPlugin == nullptr) {
    throw std::runtime_error(std::string("no plug-in is loaded, asked for its ") + name);
  }
  void* const address = dlsym(loadedPlugin, name);
  if (address == nullptr) throw std::runtime_error("the plug-in lacks a name: " + loaderReason());
  return address;
}

}  // namespace phone
