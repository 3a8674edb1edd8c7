#include "phone/uikit/picture_orientation.h"

#include <libexif/exif-data.h>

namespace phone {

int statedOrientation(std::span<const unsigned char> jpeg) {
  ExifData* const data = exif_data_new_from_data(jpeg.data(), static_cast<unsigned>(jpeg.size()));
  if (data == nullptr) return 1;
  int orientation = 1;
  const ExifEntry* const entry = exif_content_get_entry(data->ifd[EXIF_IFD_0], EXIF_TAG_ORIENTATION);
  if (entry != nullptr && entry->format == EXIF_FORMAT_SHORT && entry->size >= sizeof(ExifShort)) {
    orientation = exif_get_short(entry->data, exif_data_get_byte_order(data));
  }
  exif_data_unref(data);
  return orientation >= 1 && orientation <= 8 ? orientation : 1;
}

Surface uprightPicture(const Surface& surface, int orientation) {
  if (orientation == 1) return surface;
  const double width = cairo_image_surface_get_width(surface.get());
  const double height = cairo_image_surface_get_height(surface.get());
  // From the stored pixels to the upright ones, by orientation from 2 on.
  const cairo_matrix_t placements[] = {
      {-1, 0, 0, 1, width, 0},  {-1, 0, 0, -1, width, height}, {1, 0, 0, -1, 0, height}, {0, 1, 1, 0, 0, 0},
      {0, 1, -1, 0, height, 0}, {0, -1, -1, 0, height, width}, {0, -1, 1, 0, 0, width},
  };
  const bool isTurned = orientation >= 5;
  Surface upright = makeSurface(isTurned ? height : width, isTurned ? width : height);
  if (upright == nullptr) return nullptr;
  cairo_t* const canvas = cairo_create(upright.get());
  cairo_set_matrix(canvas, &placements[orientation - 2]);
  cairo_set_source_surface(canvas, surface.get(), 0, 0);
  cairo_pattern_set_filter(cairo_get_source(canvas), CAIRO_FILTER_NEAREST);
  cairo_paint(canvas);
  cairo_destroy(canvas);
  return upright;
}

}  // namespace phone
