// Pixel memory: Cairo image surfaces with shared ownership. Pixels are premultiplied, 32 bits each.
#pragma once

#include <cairo.h>
#include <filesystem>
#include <memory>
#include <string>

namespace phone {

/// Shared; none when empty.
using Surface = std::shared_ptr<cairo_surface_t>;

/// Takes over a surface that the caller owns.
Surface adoptSurface(cairo_surface_t* surface);

/// True when a picture of that size in pixels is worth allocating: at least one pixel, at most 50 million.
bool isUsablePixelSize(double width, double height);

/// A new surface, transparent. None when the size in pixels is not usable or there is no memory for it.
Surface makeSurface(double width, double height);

/// A copy that shares nothing with the original. None when there is no memory for it.
Surface copySurface(const Surface& original);

/// The picture as the bytes of a PNG file. Throws std::runtime_error for none and when there is no memory.
std::string pngOf(const Surface& surface);

/// Writes the picture as a PNG file: a plain file whole or not at all, anything else as it is. Throws
/// std::runtime_error with the reason.
void writePng(const Surface& surface, const std::filesystem::path& path);

}  // namespace phone
