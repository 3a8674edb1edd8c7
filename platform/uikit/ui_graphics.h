// The stack of off-screen canvases.
#pragma once

#include "platform/coregraphics/cg_context.h"

class UIImage;

extern "C" {
/// Begins a transparent canvas of that size in points, at scale 1.0, and makes it current.
void UIGraphicsBeginImageContext(CGSize size);
/// The same with a choice of opacity and scale (pixels per point; 0 means the main screen's).
void UIGraphicsBeginImageContextWithOptions(CGSize size, bool opaque, CGFloat scale);
/// The current canvas, or nil.
CGContextRef UIGraphicsGetCurrentContext();
void UIGraphicsPushContext(CGContextRef context);
void UIGraphicsPopContext();
/// The current canvas as a new image (borrowed).
UIImage* UIGraphicsGetImageFromCurrentImageContext();
void UIGraphicsEndImageContext();
}
