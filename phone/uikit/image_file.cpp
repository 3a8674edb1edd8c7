#include "phone/uikit/image_file.h"

#include <cstring>
#include <span>

#include "phone/foundation/atomic_file.h"
#include "phone/foundation/file_problems.h"
#include "phone/uikit/jpeg_decoder.h"
#include "phone/uikit/picture_orientation.h"

namespace phone {

namespace {

using Bytes = std::span<const unsigned char>;

constexpr std::uintmax_t kMaxBytes = 64UL << 20;

/// The file's content; empty when it cannot be read.
std::string contentOf(const std::filesystem::path& path) {
  try {
    return readWholeFile(path, kMaxBytes);
  } catch (const FileError& error) {
    if (isSystemFailure(error.reason())) reportFileProblem(error.what());
    return {};
  }
}

bool beginsWith(Bytes bytes, std::string_view signature) {
  return bytes.size() >= signature.size() &&
         std::memcmp(bytes.data(), signature.data(), signature.size()) == 0;
}

unsigned bigEndian(const unsigned char* bytes) {
  return unsigned{bytes[0]} << 24 | unsigned{bytes[1]} << 16 | unsigned{bytes[2]} << 8 | bytes[3];
}

cairo_status_t takeBytes(void* source, unsigned char* target, unsigned count) {
  auto& rest = *static_cast<Bytes*>(source);
  if (rest.size() < count) return CAIRO_STATUS_READ_ERROR;
  std::memcpy(target, rest.data(), count);
  rest = rest.subspan(count);
  return CAIRO_STATUS_SUCCESS;
}

Surface decodePng(Bytes bytes) {
  // Signature, then the header chunk: length, name, width, height.
  constexpr std::size_t kHeaderEnd = 24;
  if (bytes.size() < kHeaderEnd) return nullptr;
  if (!isUsablePixelSize(bigEndian(&bytes[16]), bigEndian(&bytes[20]))) return nullptr;
  Surface surface = adoptSurface(cairo_image_surface_create_from_png_stream(takeBytes, &bytes));
  if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) return nullptr;
  return surface;
}

Surface decodeUprightJpeg(Bytes bytes) {
  const Surface surface = decodeJpeg(bytes);
  return surface == nullptr ? nullptr : uprightPicture(surface, statedOrientation(bytes));
}

}  // namespace

Surface loadImageFile(const std::filesystem::path& path) {
  const std::string content = contentOf(path);
  const Bytes bytes(reinterpret_cast<const unsigned char*>(content.data()), content.size());
  if (beginsWith(bytes, "\x89PNG\r\n\x1a\n")) return decodePng(bytes);
  if (beginsWith(bytes, "\xff\xd8\xff")) return decodeUprightJpeg(bytes);
  return nullptr;
}

}  // namespace phone
