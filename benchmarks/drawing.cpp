// What drawing costs: the plug-in's dot beside the drawing library itself, and a whole lock screen.
#include <benchmark/benchmark.h>
#include <cairo.h>
#include <cmath>
#include <stdexcept>

#include "benchmarks/support/bounds.h"
#include "benchmarks/support/sample_calendar.h"
#include "benchmarks/support/scratch_folder.h"
#include "contract/files.h"
#include "phone/objc/plugin.h"
#include "phone/springboard/home_screen.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_mutable_dictionary.h"
#include "platform/foundation/ns_number.h"
#include "platform/objc/owned.h"
#include "platform/uikit/ui_color.h"
#include "platform/uikit/ui_image.h"

namespace {

constexpr double kCanvas = 80;
constexpr double kDiameter = 30;
constexpr int kEvents = 20;

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

/// The settings and files with which every event of the calendar is listed and the wallpaper is blurred.
void preparePhone() {
  const AutoreleasePool pool;
  NSMutableDictionary* const settings = NSMutableDictionary::dictionary();
  settings->setObject(NSNumber::numberWithInteger(0), "wallpaperBlurMode"_ns);
  settings->setObject("DOT"_ns, "iconFile"_ns);
  settings->writeToFile(constantText<contract::kSettingsFile>(), true);
  NSMutableDictionary::dictionary()->writeToFile(constantText<contract::kCalendarAppPreferencesFile>(), true);
  benchmarks::addCalendar("work", kEvents, 0);
}

/// From the wallpaper's file to the finished picture: a new wallpaper makes the phone forget its blurred
/// copy.
void drawLockScreen(benchmark::State& state, phone::HomeScreen& phone,
                    const std::filesystem::path& wallpaper) {
  phone::writePng(phone.picture(), wallpaper);
  for (auto _ : state) {
    const AutoreleasePool pool;
    phone.setWallpaper(wallpaper);
    benchmark::DoNotOptimize(phone.picture());
  }
}

}  // namespace

int main(int argc, char** argv) {
  const AutoreleasePool pool;
  const benchmarks::ScratchFolder root;
  std::filesystem::create_directories(root.path() / "var/mobile/Library/Preferences");
  phone::HomeScreen phone = phone::HomeScreen::boot(
      {.root = root.path(), .now = benchmarks::kNow, .timeZone = "UTC"}, TAVIMO_LIBRARY);
  preparePhone();
  phone.load();
  if (phone.rows().size() != kEvents) throw std::runtime_error("the list does not hold all events");
  benchmark::RegisterBenchmark("dot/plugin", drawDotWithPlugin);
  benchmark::RegisterBenchmark("dot/cairo", drawDotWithCairo);
  benchmark::RegisterBenchmark("lock screen", [&](benchmark::State& state) {
    drawLockScreen(state, phone, root.path() / "wallpaper.png");
  })->Unit(benchmark::kMillisecond);
  using benchmarks::Measurements;
  return benchmarks::runAgainstBounds(
      argc, argv,
      {{"dot icon over the same two ellipses drawn directly", "ratio", 1.3,
        [](const Measurements& m) { return m.cpuTime("dot/plugin") / m.cpuTime("dot/cairo"); }},
       {"drawing a lock screen with 20 events at scale 2, reading and blurring the wallpaper", "ms", 150,
        [](const Measurements& m) { return m.cpuTime("lock screen") / 1e6; }}});
}
