#include "phone/objc/plugin.h"

#include <dlfcn.h>
#include <stdexcept>
#include <string>
#include <vector>

#include "phone/objc/plugin_file.h"

namespace phone {

namespace {

namespace fs = std::filesystem;

std::string loaderReason() {
  const char* const reason = dlerror();
  return reason == nullptr ? "unknown reason" : reason;
}

/// A library of this machine's own format.
class SharedObject : public LoadedPlugin {
 public:
  explicit SharedObject(const fs::path& path) : handle_(dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    if (handle_ == nullptr) throw std::runtime_error(loaderReason());
  }

  void* address(const char* name) override { return dlsym(handle_, name); }

 private:
  // Never closed: the host's methods lead into it.
  void* handle_;
};

std::vector<PluginFormat>& furtherFormats() {
  static std::vector<PluginFormat> formats;
  return formats;
}

// Kept until the process ends, after everything that may still call into it.
LoadedPlugin* loadedPlugin = nullptr;

std::unique_ptr<LoadedPlugin> load(const fs::path& path) {
  requireReadableFile(path);
  for (const PluginFormat format : furtherFormats()) {
    if (auto plugin = format(path)) return plugin;
  }
  requireSharedObject(path);
  return std::make_unique<SharedObject>(path);
}

LoadedPlugin& pluginWith(const char* name) {
  if (loadedPlugin != nullptr) return *loadedPlugin;
  throw std::runtime_error(std::string("no plug-in is loaded, asked for its ") + name);
}

void* offered(void* address, const char* name) {
  if (address != nullptr) return address;
  throw std::runtime_error(std::string("the plug-in lacks the name ") + name);
}

}  // namespace

void addPluginFormat(PluginFormat format) { furtherFormats().push_back(format); }

void loadPlugin(const fs::path& library) {
  try {
    // A name without a slash would be searched in the system's folders.
    loadedPlugin = load(fs::absolute(library)).release();
  } catch (const std::runtime_error& error) {
    throw std::runtime_error("cannot load the plug-in " + library.string() + ": " + error.what());
  }
}

void* pluginAddress(const char* name) { return offered(pluginWith(name).address(name), name); }

void* pluginFunction(const char* name, const char* encoding) {
  return offered(pluginWith(name).function(name, encoding), name);
}

}  // namespace phone
