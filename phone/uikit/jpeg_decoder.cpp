#include "phone/uikit/jpeg_decoder.h"

#include <csetjmp>
#include <cstdio>
#include <jpeglib.h>

namespace phone {

namespace {

struct ErrorManager {
  jpeg_error_mgr base;
  std::jmp_buf giveUp;
};

[[noreturn]] void leave(j_common_ptr decoder) {
  std::longjmp(reinterpret_cast<ErrorManager*>(decoder->err)->giveUp, 1);
}

void keepSilent(j_common_ptr) {}

/// A picture may come in passes over all its pixels. Cameras write a dozen; a file of thousands is meant to
/// keep its reader busy.
void limitPasses(j_common_ptr decoder) {
  constexpr int kMaxPasses = 100;
  if (reinterpret_cast<j_decompress_ptr>(decoder)->input_scan_number > kMaxPasses) leave(decoder);
}

/// Fills the surface; false when the file is broken. Nothing with a destructor may live in here: the library
/// leaves by a jump.
bool decodeInto(jpeg_decompress_struct& decoder, ErrorManager& errors, jpeg_progress_mgr& progress,
                std::span<const unsigned char> bytes, Surface& surface) {
  if (setjmp(errors.giveUp) != 0) return false;
  jpeg_create_decompress(&decoder);
  decoder.progress = &progress;
  jpeg_mem_src(&decoder, bytes.data(), bytes.size());
  if (jpeg_read_header(&decoder, TRUE) != JPEG_HEADER_OK) return false;
  surface = makeSurface(decoder.image_width, decoder.image_height);
  if (surface == nullptr) return false;
  // Cairo's order of bytes on a little-endian machine, with the fourth one set to opaque.
  decoder.out_color_space = JCS_EXT_BGRA;
  jpeg_start_decompress(&decoder);
  unsigned char* const pixels = cairo_image_surface_get_data(surface.get());
  const int stride = cairo_image_surface_get_stride(surface.get());
  while (decoder.output_scanline < decoder.output_height) {
    JSAMPROW row = pixels + static_cast<std::ptrdiff_t>(decoder.output_scanline) * stride;
    jpeg_read_scanlines(&decoder, &row, 1);
  }
  cairo_surface_mark_dirty(surface.get());
  return true;
}

}  // namespace

Surface decodeJpeg(std::span<const unsigned char> bytes) {
  jpeg_decompress_struct decoder{};
  ErrorManager errors{};
  decoder.err = jpeg_std_error(&errors.base);
  errors.base.error_exit = leave;
  errors.base.output_message = keepSilent;
  jpeg_progress_mgr progress{};
  progress.progress_monitor = limitPasses;
  Surface surface;
  const bool isWhole = decodeInto(decoder, errors, progress, bytes, surface);
  jpeg_destroy_decompress(&decoder);
  return isWhole ? surface : nullptr;
}

}  // namespace phone
