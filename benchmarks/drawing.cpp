// What the plug-in's drawing costs beside the drawing library itself.
#include <benchmark/benchmark.h>
#include <cairo.h>
#include <cmath>

#include "benchmarks/support/bounds.h"
#include "benchmarks/support/scratch_folder.h"
#include "phone/foundation/foundation.h"
#include "phone/objc/plugin.h"
#include "phone/uikit/uikit.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/objc/owned.h"
#include "platform/uikit/ui_color.h"
#include "platform/uikit/ui_image.h"

namespace {

constexpr double kCanvas = 80;
constexpr double kDiameter = 30;

void drawDotWithPlugin(benchmark::State& state) {
  auto* const drawColoredDot = phone::pluginSymbol<UIImage*(UIColor*, double)>("drawColoredDot");
  UIColor* const color = UIColor::redColor();
  for (auto _ : state) {
    const AutoreleasePool pool;
    objc::Owned<UIImage>::adopt(drawColoredDot(color, kDiameter));
  }
}

/// The plug-in's dot with nothing in between: one disc stroked, then filled.
void drawDotWithCairo(benchmark::State& state) {
  for (auto _ : state) {
    cairo_surface_t* const surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, kCanvas, kCanvas);
    cairo_t* const canvas = cairo_create(surface);
    cairo_set_line_width(canvas, 2);
    for (const bool outline : {true, false}) {
      cairo_new_path(canvas);
      cairo_arc(canvas, kCanvas / 2, kCanvas / 2, kDiameter / 2, 0, 2 * M_PI);
      cairo_close_path(canvas);
      cairo_set_source_rgba(canvas, outline ? 0 : 1, 0, 0, 1);
      outline ? cairo_stroke(canvas) : cairo_fill(canvas);
    }
    cairo_destroy(canvas);
    benchmark::DoNotOptimize(cairo_image_surface_get_data(surface));
    cairo_surface_destroy(surface);
  }
}

}  // namespace

int main(int argc, char** argv) {
  const AutoreleasePool pool;
  const benchmarks::ScratchFolder root;
  phone::startFoundation({.root = root.path()});
  phone::registerUIKit();
  phone::loadPlugin(TAVIMO_LIBRARY);
  benchmark::RegisterBenchmark("dot/plugin", drawDotWithPlugin);
  benchmark::RegisterBenchmark("dot/cairo", drawDotWithCairo);
  return benchmarks::runAgainstBounds(argc, argv,
                                      {{"dot icon over the same two ellipses drawn directly", "ratio", 1.3,
                                        [](const benchmarks::Measurements& measurements) {
                                          return measurements.cpuTime("dot/plugin") /
                                                 measurements.cpuTime("dot/cairo");
                                        }}});
}
