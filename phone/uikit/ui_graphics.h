// The stack of current drawing contexts: canvases that were begun, and contexts that were pushed.
#pragma once

#include <memory>
#include <vector>

#include "phone/uikit/cg_context.h"
#include "platform/uikit/ui_graphics.h"

namespace phone {

struct CanvasStack {
  struct Entry {
    /// None for a canvas whose size was refused; it keeps its place so that its end finds it.
    std::shared_ptr<CGContext> context;
    bool isCanvas;
  };
  std::vector<Entry> entries;
};

/// Makes a Cairo context the current drawing context for the length of a scope, as drawRect: finds it.
class CurrentContext {
 public:
  explicit CurrentContext(cairo_t* canvas);
  ~CurrentContext();
  CurrentContext(const CurrentContext&) = delete;
  CurrentContext& operator=(const CurrentContext&) = delete;

 private:
  std::shared_ptr<CGContext> context_;
  std::size_t depth_;
};

/// The Cairo context behind the current drawing context (borrowed), or nil.
cairo_t* currentCanvas();

}  // namespace phone
