// A picture: a size in points and a scale of pixels per point.
#pragma once

#include "platform/coregraphics/cg_geometry.h"
#include "platform/foundation/ns_object.h"

class UIImage : public NSObject {
 public:
  UIImage() = delete;

  static UIImage* imageWithContentsOfFile(NSString* path) {
    return objc::sendToClass<UIImage, "imageWithContentsOfFile:", UIImage*>(path);
  }
  CGSize size() { return objc::send<"size", CGSize>(this); }
  CGFloat scale() { return objc::send<"scale", CGFloat>(this); }
  /// Draws into the current canvas.
  void drawInRect(CGRect rect) { objc::send<"drawInRect:">(this, rect); }
};
