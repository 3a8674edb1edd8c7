// Small images drawn off screen: calendar-colour dots and icons with rounded corners.
#pragma once

#include "platform/objc/owned.h"
#include "platform/uikit/ui_color.h"
#include "platform/uikit/ui_image.h"
#include "tavimo/export.h"

namespace tavimo {

/// A round dot of that diameter in points, with a thin black ring, centred in an image of 80 by 80 points.
objc::Owned<UIImage> coloredDot(UIColor* color, double diameter);

/// A copy of the image with rounded corners at the screen's scale. The corner is cut with the square of
/// `radius` in points. No image gives nil.
objc::Owned<UIImage> roundedCopy(UIImage* image, double radius);

}  // namespace tavimo

/// coloredDot() as a new image, owned by the caller.
TAVIMO_EXPORT UIImage* drawColoredDot(UIColor* color, double diameter);

/// roundedCopy() as a new image, owned by the caller; a radius of 0.0 hands back the caller's own image.
TAVIMO_EXPORT UIImage* roundedRectImageFromImage(UIImage* image, double radius);
