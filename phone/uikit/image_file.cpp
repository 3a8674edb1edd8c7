#include "phone/uikit/image_file.h"

#include <cstring>
#include <fcntl.h>
#include <span>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "phone/uikit/jpeg_decoder.h"
#include "phone/uikit/picture_orientation.h"

namespace phone {

namespace {

using Bytes = std::span<const unsigned char>;

std::vector<unsigned char> readRegularFile(const std::filesystem::path& path) {
  constexpr off_t kMostBytes = 64 << 20;
  // Not blocking: opening a pipe that nobody writes to would wait for ever.
  const int file = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (file < 0) return {};
  std::vector<unsigned char> bytes;
  struct stat facts {};
  if (fstat(file, &facts) == 0 && S_ISREG(facts.st_mode) && facts.st_size <= kMostBytes) {
    bytes.resize(static_cast<std::size_t>(facts.st_size));
    std::size_t filled = 0;
    while (filled < bytes.size()) {
      const ssize_t count = read(file, bytes.data() + filled, bytes.size() - filled);
      if (count <= 0) break;
      filled += static_cast<std::size_t>(count);
    }
    bytes.resize(filled);
  }
  close(file);
  return bytes;
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
  const std::vector<unsigned char> bytes = readRegularFile(path);
  if (beginsWith(bytes, "\x89PNG\r\n\x1a\n")) return decodePng(bytes);
  if (beginsWith(bytes, "\xff\xd8\xff")) return decodeUprightJpeg(bytes);
  return nullptr;
}

}  // namespace phone
