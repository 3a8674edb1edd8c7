// Libraries for phones, as the emulated phone reads and maps them; their code is not run. What holds for
// every file: it is refused with one line, or it is joined, and all that it offers lies in its own memory.
#include "device/emulated/image.h"
#include "fuzz/support/target.h"

namespace phone::fuzz {

namespace {

/// Offers every name but one.
void* offered(const std::string& name) {
  static int something = 0;
  return name == "missing" ? nullptr : &something;
}

class PhoneLibraryTarget : public Target {
 public:
  void tryInput(std::string_view bytes) override {
    const device::Bytes file = std::as_bytes(std::span(bytes));
    device::isPhoneLibrary(file);
    for (const auto processor : {device::Processor::kArm64, device::Processor::kArm32}) {
      try {
        load(file, processor);
      } catch (const device::BadLibrary& reason) {
        const std::string text = reason.what();
        require(!text.empty() && text.find('\n') == std::string::npos, "a refusal is one line");
      }
    }
  }

 private:
  static void load(device::Bytes file, device::Processor processor) {
    const device::Image image(file, offered, processor);
    for (const char* const name : {"early", "count", "a", ""}) {
      void* const address = image.address(name);
      if (address == nullptr) continue;
      const auto place = reinterpret_cast<std::uintptr_t>(address);
      require(image.holds(place), "an offered name lies in the library");
      require(!image.describe(place).empty(), "a place in the library has a description");
    }
  }
};

}  // namespace

std::unique_ptr<Target> makeTarget() { return std::make_unique<PhoneLibraryTarget>(); }

}  // namespace phone::fuzz
