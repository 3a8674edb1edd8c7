// Teaches the stand-in phone to load a library that was built for a real one. Linked into programs for the
// phone's processors only.
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>

#include "device/emulated/crash_report.h"
#include "device/emulated/entry.h"
#include "device/emulated/names.h"
#include "phone/objc/plugin.h"

namespace device {

namespace {

/// The bytes of a loaded library are needed as long as the process lives: its symbols are read from them.
const std::vector<std::byte>& keptBytes(const std::filesystem::path& path) {
  std::ifstream stream(path, std::ios::binary);
  std::vector<char> characters{std::istreambuf_iterator<char>(stream), {}};
  if (!stream) throw BadLibrary("it cannot be read");
  const auto* const first = reinterpret_cast<const std::byte*>(characters.data());
  return *new std::vector<std::byte>(first, first + characters.size());
}

void (*entered(void* function, const char* encoding))() {
  return reinterpret_cast<void (*)()>(enteredAsOnPhones(reinterpret_cast<IMP>(function), encoding));
}

class PhoneLibrary : public phone::LoadedPlugin {
 public:
  explicit PhoneLibrary(Bytes file) : image_(file, hostAddress) {
    // A copy of the library that still has its symbols, for reports.
    if (const char* const symbols = std::getenv("TAVIMO_PLUGIN_SYMBOLS"))
      image_.takeSymbols(keptBytes(symbols));
    reportCrashesIn(image_);
    for (void* const initializer : image_.initializers()) entered(initializer, "v")();
  }

  void* address(const char* name) override { return image_.address(name); }
  void* function(const char* name, const char* encoding) override {
    void* const address = image_.address(name);
    return address == nullptr ? nullptr : reinterpret_cast<void*>(entered(address, encoding));
  }

 private:
  Image image_;
};

const bool isKnown = [] {
  phone::addPluginFormat([](const std::filesystem::path& path) -> std::unique_ptr<phone::LoadedPlugin> {
    const std::vector<std::byte>& file = keptBytes(path);
    if (!isPhoneLibrary(file)) return nullptr;
    return std::make_unique<PhoneLibrary>(file);
  });
  return true;
}();

}  // namespace

}  // namespace device
