// Picture files: as icon of the plug-in, as wallpaper, and decoded. What holds for every file: it gives no
// picture, or one of a usable size that a second look gives as well; rounded corners leave the size as it is.
#include "fuzz/support/target.h"
#include "phone/foundation/foundation.h"
#include "phone/springboard/wallpaper.h"
#include "phone/uikit/image_file.h"
#include "phone/uikit/ui_image.h"
#include "platform/foundation/literal.h"
#include "tests/tavimo/support/lock_screen.h"

namespace phone::fuzz {

namespace {

class ImagesTarget : public Target {
 public:
  ImagesTarget() {
    std::filesystem::create_directories(file().parent_path());
    phone_.settings("<key>iconFile</key><string>" + std::string(kIcon) + "</string>");
  }

  void tryInput(std::string_view bytes) override {
    writeBytes(file(), bytes);
    const Surface picture = loadImageFile(file());
    phone_.makeController();
    phone_.load();
    auto* const icon = exported<UIImage*>("icon");
    require((icon == nullptr) == (picture == nullptr), "the icon is there when its file is a picture");
    if (picture == nullptr) return;
    const int width = cairo_image_surface_get_width(picture.get());
    const int height = cairo_image_surface_get_height(picture.get());
    require(isUsablePixelSize(width, height), "a picture has a usable size");
    checkIcon(icon, width, height);
    const Surface wallpaper = fillingCopy(picture, 64, 114);
    require(wallpaper != nullptr && cairo_image_surface_get_width(wallpaper.get()) == 64 &&
                cairo_image_surface_get_height(wallpaper.get()) == 114,
            "a wallpaper fills the screen");
  }

 private:
  static constexpr const char* kIcon = "/Applications/MobileCal.app/fuzzed@2x.png";

  std::filesystem::path file() const { return phone_.fileAt(kIcon); }

  static void checkIcon(UIImage* icon, int width, int height) {
    require(icon->size().width * 2 == width && icon->size().height * 2 == height,
            "an icon is as large as its file says");
    const auto rounded = objc::Owned<UIImage>::adopt(
        (*pluginSymbol<UIImage*(UIImage*, double)>("roundedRectImageFromImage"))(icon, 3));
    if (!rounded) return;
    require(rounded->size().width == icon->size().width && rounded->size().height == icon->size().height,
            "rounded corners leave the size as it is");
  }

  LockScreen phone_;
};

}  // namespace

std::unique_ptr<Target> makeTarget() { return std::make_unique<ImagesTarget>(); }

}  // namespace phone::fuzz
