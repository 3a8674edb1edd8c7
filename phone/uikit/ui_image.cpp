#include "phone/uikit/ui_image.h"

#include <cmath>
#include <string_view>
#include <utility>

#include "phone/foundation/phone_root.h"
#include "phone/objc/class_definition.h"
#include "phone/uikit/definitions.h"
#include "phone/uikit/image_file.h"
#include "phone/uikit/ui_graphics.h"

namespace phone {

namespace {

struct ImageState {
  Surface surface;
  double scale = 1;
};

/// "icon@2x.png" and "icon@2x~iphone.png" hold two pixels a point.
double scaleFromName(const std::filesystem::path& path) {
  std::string stem = path.stem().string();
  if (const auto tilde = stem.rfind('~'); tilde != std::string::npos) stem.resize(tilde);
  return stem.ends_with("@3x") ? 3 : stem.ends_with("@2x") ? 2 : 1;
}

UIImage* initWithContentsOfFile(UIImage* self, SEL, NSString* path) {
  auto owned = objc::Owned<UIImage>::adopt(self);
  if (path == nullptr) return nullptr;
  const std::filesystem::path name(path->UTF8String());
  auto& [surface, scale] = stateOf<ImageState>(self);
  surface = loadImageFile(pathOnThisMachine(name.native()));
  scale = scaleFromName(name);
  return surface == nullptr ? nullptr : owned.relinquish();
}

UIImage* imageWithContentsOfFile(Class self, SEL, NSString* path) {
  auto* const image = objc::send<"alloc", UIImage*>(static_cast<void*>(self));
  return objc::Owned<UIImage>::adopt(objc::send<"initWithContentsOfFile:", UIImage*>(image, path))
      .autorelease();
}

CGSize size(UIImage* self, SEL) {
  const auto& [surface, scale] = stateOf<ImageState>(self);
  if (surface == nullptr) return {};
  return {cairo_image_surface_get_width(surface.get()) / scale,
          cairo_image_surface_get_height(surface.get()) / scale};
}

CGFloat scale(UIImage* self, SEL) { return stateOf<ImageState>(self).scale; }

void drawInRect(UIImage* self, SEL, CGRect rect) {
  cairo_t* const canvas = currentCanvas();
  if (canvas != nullptr) drawSurface(canvas, surfaceOf(self), rect);
}

}  // namespace

objc::Owned<UIImage> makeImage(Surface surface, double scale) {
  auto image = objc::make<UIImage>();
  stateOf<ImageState>(image.get()) = {std::move(surface), scale};
  return image;
}

Surface surfaceOf(UIImage* image) { return image == nullptr ? nullptr : stateOf<ImageState>(image).surface; }

void drawSurface(cairo_t* canvas, const Surface& surface, CGRect rect) {
  const double width = CGRectGetWidth(rect);
  const double height = CGRectGetHeight(rect);
  if (surface == nullptr || !(width > 0) || !(height > 0)) return;
  cairo_path_t* const path = cairo_copy_path(canvas);
  cairo_save(canvas);
  cairo_new_path(canvas);
  cairo_rectangle(canvas, CGRectGetMinX(rect), CGRectGetMinY(rect), width, height);
  cairo_translate(canvas, CGRectGetMinX(rect), CGRectGetMinY(rect));
  cairo_scale(canvas, width / cairo_image_surface_get_width(surface.get()),
              height / cairo_image_surface_get_height(surface.get()));
  cairo_set_source_surface(canvas, surface.get(), 0, 0);
  // Pixels at the edge must not mix with the nothing beyond it.
  cairo_pattern_set_extend(cairo_get_source(canvas), CAIRO_EXTEND_PAD);
  cairo_pattern_set_filter(cairo_get_source(canvas), CAIRO_FILTER_GOOD);
  cairo_fill(canvas);
  cairo_restore(canvas);
  cairo_append_path(canvas, path);
  cairo_path_destroy(path);
}

ClassDefinition uiImage() {
  return {.name = "UIImage",
          .superclass = "NSObject",
          .state = state<ImageState>(),
          .methods = {
              classMethod("imageWithContentsOfFile:", imageWithContentsOfFile),
              method("initWithContentsOfFile:", initWithContentsOfFile),
              method("size", size),
              method("scale", scale),
              method("drawInRect:", drawInRect),
          }};
}

}  // namespace phone
