// A picture inside the view hierarchy, scaled to fit with its proportions kept.
#include <algorithm>

#include "phone/uikit/definitions.h"
#include "phone/uikit/ui_graphics.h"
#include "phone/uikit/ui_image.h"
#include "phone/uikit/ui_view.h"

namespace phone {

namespace {

/// The values of contentMode that are told apart; every other one scales to fit.
enum ContentMode : NSInteger { kScaleToFill = 0, kScaleAspectFit = 1, kScaleAspectFill = 2, kCenter = 4 };

struct ImageViewState {
  objc::Owned<UIImage> image;
  NSInteger contentMode = kScaleToFill;
};

UIView* initWithImage(UIView* self, SEL, UIImage* image) {
  const CGSize size = image->size();
  self = objc::send<"initWithFrame:", UIView*>(self, CGRect{{}, size});
  stateOf<ImageViewState>(self).image = objc::Owned<UIImage>::retain(image);
  return self;
}

CGSize sizeThatFits(UIView* self, SEL, CGSize) { return stateOf<ImageViewState>(self).image->size(); }

CGSize drawnSize(CGSize image, CGSize room, NSInteger mode) {
  if (mode == kScaleToFill) return room;
  if (mode == kCenter) return image;
  const double across = room.width / image.width;
  const double down = room.height / image.height;
  const double factor = mode == kScaleAspectFill ? std::max(across, down) : std::min(across, down);
  return {image.width * factor, image.height * factor};
}

void drawRect(UIView* self, SEL, CGRect) {
  const auto& [image, mode] = stateOf<ImageViewState>(self);
  cairo_t* const canvas = currentCanvas();
  if (!image || canvas == nullptr) return;
  const CGRect room = self->bounds();
  const CGSize size = drawnSize(image->size(), room.size, mode);
  drawSurface(canvas, surfaceOf(image.get()),
              {{room.origin.x + (room.size.width - size.width) / 2,
                room.origin.y + (room.size.height - size.height) / 2},
               size});
}

}  // namespace

ClassDefinition uiImageView() {
  return {.name = "UIImageView",
          .superclass = "UIView",
          .state = state<ImageViewState>(),
          .methods = {
              method("initWithImage:", initWithImage),
              property<&ImageViewState::image, "image">(),
              property<&ImageViewState::contentMode, "contentMode">(),
              method("sizeThatFits:", sizeThatFits),
              method("drawRect:", drawRect),
          }};
}

}  // namespace phone
