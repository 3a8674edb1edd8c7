// Drawing into the current canvas.
#pragma once

#include "platform/coregraphics/cg_color.h"

struct CGContext;
using CGContextRef = CGContext*;

template <>
struct objc::Encoding<CGContextRef> {
  static constexpr FixedString value = "^{CGContext=}";
};

extern "C" {
void CGContextSetLineWidth(CGContextRef context, CGFloat width);
void CGContextSetStrokeColorWithColor(CGContextRef context, CGColorRef color);
void CGContextSetFillColorWithColor(CGContextRef context, CGColorRef color);
void CGContextStrokeEllipseInRect(CGContextRef context, CGRect rect);
void CGContextFillEllipseInRect(CGContextRef context, CGRect rect);
void CGContextBeginPath(CGContextRef context);
void CGContextSaveGState(CGContextRef context);
void CGContextRestoreGState(CGContextRef context);
void CGContextTranslateCTM(CGContextRef context, CGFloat x, CGFloat y);
void CGContextScaleCTM(CGContextRef context, CGFloat x, CGFloat y);
void CGContextMoveToPoint(CGContextRef context, CGFloat x, CGFloat y);
/// A corner arc of that radius, tangent to the lines current point to corner and corner to end.
void CGContextAddArcToPoint(CGContextRef context, CGFloat cornerX, CGFloat cornerY, CGFloat endX,
                            CGFloat endY, CGFloat radius);
void CGContextClosePath(CGContextRef context);
void CGContextClip(CGContextRef context);
}
