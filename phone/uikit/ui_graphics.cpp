#include "phone/uikit/ui_graphics.h"

#include <algorithm>
#include <cmath>

#include "phone/uikit/ui_image.h"
#include "phone/uikit/uikit_state.h"

namespace phone {

namespace {

std::vector<CanvasStack::Entry>& entries() { return uiKit().canvases.entries; }

CGContext* currentContext() { return entries().empty() ? nullptr : entries().back().context.get(); }

std::shared_ptr<CGContext> makeCanvas(CGSize size, bool opaque, CGFloat scale) {
  if (scale == 0) scale = hostOptions().screenScale;
  Surface surface = makeSurface(std::ceil(size.width * scale), std::ceil(size.height * scale));
  if (surface == nullptr) return nullptr;
  auto context = std::make_shared<CGContext>(std::move(surface), scale);
  if (opaque) {
    // An opaque canvas has no transparent pixels, whatever is left undrawn.
    cairo_set_source_rgb(context->canvas, 0, 0, 0);
    cairo_paint(context->canvas);
  }
  return context;
}

}  // namespace

CurrentContext::CurrentContext(cairo_t* canvas)
    : context_(std::make_shared<CGContext>(canvas)), depth_(entries().size()) {
  entries().push_back({context_, false});
}

CurrentContext::~CurrentContext() {
  // What the drawing began and did not end must not reach the next view.
  while (!context_->savedColors.empty()) CGContextRestoreGState(context_.get());
  entries().resize(std::min(depth_, entries().size()));
}

cairo_t* currentCanvas() {
  CGContext* const context = currentContext();
  return context == nullptr ? nullptr : context->canvas;
}

}  // namespace phone

using phone::CanvasStack;

void UIGraphicsBeginImageContext(CGSize size) { UIGraphicsBeginImageContextWithOptions(size, false, 1); }

void UIGraphicsBeginImageContextWithOptions(CGSize size, bool opaque, CGFloat scale) {
  phone::entries().push_back({phone::makeCanvas(size, opaque, scale), true});
}

CGContextRef UIGraphicsGetCurrentContext() { return phone::currentContext(); }

void UIGraphicsPushContext(CGContextRef context) {
  phone::entries().push_back({context == nullptr ? nullptr : context->shared_from_this(), false});
}

void UIGraphicsPopContext() {
  auto& entries = phone::entries();
  if (!entries.empty() && !entries.back().isCanvas) entries.pop_back();
}

UIImage* UIGraphicsGetImageFromCurrentImageContext() {
  CGContext* const context = phone::currentContext();
  if (context == nullptr || context->surface == nullptr) return nullptr;
  cairo_surface_flush(context->surface.get());
  phone::Surface copy = phone::copySurface(context->surface);
  if (copy == nullptr) return nullptr;
  return phone::makeImage(std::move(copy), context->scale).autorelease();
}

void UIGraphicsEndImageContext() {
  auto& entries = phone::entries();
  if (!entries.empty() && entries.back().isCanvas) entries.pop_back();
}
