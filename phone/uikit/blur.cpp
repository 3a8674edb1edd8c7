#include "phone/uikit/blur.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "phone/uikit/ui_image.h"

namespace phone {

namespace {

using Sums = std::array<std::uint32_t, 4>;

inline void add(Sums& sums, const std::uint8_t* pixel) {
  for (int i = 0; i < 4; ++i) sums[i] += pixel[i];
}

inline void subtract(Sums& sums, const std::uint8_t* pixel) {
  for (int i = 0; i < 4; ++i) sums[i] -= pixel[i];
}

/// One box mean along rows of `length` pixels. The result is transposed, so that a second call runs down the
/// columns and turns the picture back. Pixels beyond an end count as the last one before it.
void boxBlurTransposed(const std::uint32_t* source, std::uint32_t* target, int length, int count,
                       int radius) {
  const std::uint32_t weight = (1u << 24) / (2 * static_cast<std::uint32_t>(radius) + 1);
  for (int line = 0; line < count; ++line) {
    const std::uint32_t* const row = source + static_cast<std::size_t>(line) * length;
    const auto pixelAt = [row, length](int position) {
      return reinterpret_cast<const std::uint8_t*>(row + std::clamp(position, 0, length - 1));
    };
    Sums sums{};
    for (int i = -radius; i <= radius; ++i) add(sums, pixelAt(i));
    for (int i = 0; i < length; ++i) {
      auto* const pixel =
          reinterpret_cast<std::uint8_t*>(target + static_cast<std::size_t>(i) * count + line);
      for (int channel = 0; channel < 4; ++channel) {
        pixel[channel] =
            static_cast<std::uint8_t>((std::uint64_t{sums[channel]} * weight + (1u << 23)) >> 24);
      }
      subtract(sums, pixelAt(i - radius));
      add(sums, pixelAt(i + radius + 1));
    }
  }
}

/// Draws one picture over the whole of the other.
void stretchOnto(const Surface& target, const Surface& source) {
  cairo_t* const canvas = cairo_create(target.get());
  drawSurface(canvas, source,
              {{0, 0},
               {static_cast<double>(cairo_image_surface_get_width(target.get())),
                static_cast<double>(cairo_image_surface_get_height(target.get()))}});
  cairo_destroy(canvas);
  cairo_surface_flush(target.get());
}

}  // namespace

Surface blurredCopy(const Surface& original, int radius) {
  // Three boxes make a good bell, and a blur hides that it was made at half the size.
  constexpr int kBoxes = 3;
  constexpr int kReduction = 2;
  const int fullWidth = cairo_image_surface_get_width(original.get());
  const int fullHeight = cairo_image_surface_get_height(original.get());
  const int width = std::max(fullWidth / kReduction, 1);
  const int height = std::max(fullHeight / kReduction, 1);
  const int boxRadius = std::max(radius / (2 * kReduction), 1);
  const Surface reduced = makeSurface(width, height);
  Surface result = makeSurface(fullWidth, fullHeight);
  if (reduced == nullptr || result == nullptr) return nullptr;
  stretchOnto(reduced, original);
  // Rows of these surfaces lie one behind the other without a gap: a pixel has the size of their alignment.
  auto* const pixels = reinterpret_cast<std::uint32_t*>(cairo_image_surface_get_data(reduced.get()));
  std::vector<std::uint32_t> turned(static_cast<std::size_t>(width) * height);
  for (int box = 0; box < kBoxes; ++box) {
    boxBlurTransposed(pixels, turned.data(), width, height, boxRadius);
    boxBlurTransposed(turned.data(), pixels, height, width, boxRadius);
  }
  cairo_surface_mark_dirty(reduced.get());
  stretchOnto(result, reduced);
  return result;
}

void darken(const Surface& surface, double strength) {
  cairo_t* const canvas = cairo_create(surface.get());
  cairo_set_source_rgba(canvas, 0, 0, 0, strength);
  cairo_paint(canvas);
  cairo_destroy(canvas);
}

}  // namespace phone
