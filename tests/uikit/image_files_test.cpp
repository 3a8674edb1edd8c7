// Pictures from files, good and hostile, below the phone root.
#include <cstdio>
#include <fstream>
#include <jpeglib.h>
#include <sys/stat.h>

#include "phone/uikit/ui_image.h"
#include "platform/uikit/ui_graphics.h"
#include "tests/foundation/temporary_folder.h"
#include "tests/support/picture_comparison.h"
#include "tests/uikit/uikit_test.h"

namespace phone {
namespace {

struct FolderFirst {
  TemporaryFolder folder_;
};

class ImageFiles : private FolderFirst, public UIKitTest {
 protected:
  ImageFiles() : UIKitTest({.root = folder_.path()}) { std::filesystem::create_directories(local("")); }

  /// Where the phone's file of that name lies on this machine.
  std::filesystem::path local(const std::string& name) const {
    return folder_.path() / "Applications/MobileCal.app" / name;
  }
  static UIImage* load(const std::string& name) {
    return UIImage::imageWithContentsOfFile(text("/Applications/MobileCal.app/" + name));
  }
  void write(const std::string& name, const std::string& bytes) const {
    std::ofstream(local(name), std::ios::binary) << bytes;
  }

  /// Half-transparent red.
  static Surface redPicture(int width, int height) {
    Surface surface = makeSurface(width, height);
    cairo_t* const canvas = cairo_create(surface.get());
    cairo_set_source_rgba(canvas, 1, 0, 0, 0.5);
    cairo_paint(canvas);
    cairo_destroy(canvas);
    return surface;
  }

  /// Sixteen by eight pixels, the upper left quarter darker; states the orientation unless that is 0.
  void writeJpeg(const std::string& name, int components, int orientation = 0) const {
    std::FILE* const file = std::fopen(local(name).c_str(), "wb");
    jpeg_compress_struct encoder{};
    jpeg_error_mgr errors{};
    encoder.err = jpeg_std_error(&errors);
    jpeg_create_compress(&encoder);
    jpeg_stdio_dest(&encoder, file);
    encoder.image_width = 16;
    encoder.image_height = 8;
    encoder.input_components = components;
    encoder.in_color_space = components == 1 ? JCS_GRAYSCALE : JCS_RGB;
    jpeg_set_defaults(&encoder);
    jpeg_set_quality(&encoder, 100, TRUE);
    jpeg_start_compress(&encoder, TRUE);
    if (orientation != 0) {
      std::vector<unsigned char> marker = {'E', 'x',  'i', 'f', 0, 0, 'M', 'M', 0, 42, 0, 0, 0, 8, 0, 1,
                                           1,   0x12, 0,   3,   0, 0, 0,   1,   0, 0,  0, 0, 0, 0, 0, 0};
      marker[25] = static_cast<unsigned char>(orientation);
      jpeg_write_marker(&encoder, JPEG_APP0 + 1, marker.data(), static_cast<unsigned>(marker.size()));
    }
    for (int y = 0; y < 8; ++y) {
      std::vector<unsigned char> row;
      for (int x = 0; x < 16; ++x) {
        const unsigned char light = x < 8 && y < 4 ? 100 : 200;
        for (int component = 0; component < components; ++component)
          row.push_back(component == 2 ? 0 : light);
      }
      JSAMPROW pixels = row.data();
      jpeg_write_scanlines(&encoder, &pixels, 1);
    }
    jpeg_finish_compress(&encoder);
    jpeg_destroy_compress(&encoder);
    std::fclose(file);
  }
};

std::string contentOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST_F(ImageFiles, NameTellsThePixelsAPoint) {
  const struct {
    const char* name;
    double scale;
  } rows[] = {{"icon.png", 1},           {"icon@2x.png", 2}, {"icon@3x.png", 3},
              {"icon@2x~iphone.png", 2}, {"@2x", 2},         {"2x.png", 1}};
  for (const auto& [name, scale] : rows) {
    writePng(redPicture(12, 6), local(name));
    UIImage* const image = load(name);
    ASSERT_NE(image, nullptr) << name;
    EXPECT_EQ(image->scale(), scale) << name;
    EXPECT_EQ(image->size().width, 12 / scale) << name;
    EXPECT_EQ(image->size().height, 6 / scale) << name;
    EXPECT_LE(pixelDistance(pixelAt(surfaceOf(image), 3, 3), {128, 0, 0, 128}), 1) << name;
  }
}

TEST_F(ImageFiles, JpegPicturesAreDecodedInColourAndGrey) {
  writeJpeg("colour.jpg", 3);
  writeJpeg("grey.jpg", 1);
  EXPECT_LE(pixelDistance(pixelAt(surfaceOf(load("colour.jpg")), 13, 6), {200, 200, 0, 255}), 4);
  EXPECT_LE(pixelDistance(pixelAt(surfaceOf(load("grey.jpg")), 15, 7), {200, 200, 200, 255}), 4);
  EXPECT_EQ(load("grey.jpg")->size().width, 16);
}

TEST_F(ImageFiles, PhotographsStandUpright) {
  // Where the corner of the stored picture comes to lie, by stated orientation.
  const struct {
    int orientation;
    bool right;
    bool bottom;
    bool turned;
  } rows[] = {{1, false, false, false}, {2, true, false, false}, {3, true, true, false},
              {4, false, true, false},  {5, false, false, true}, {6, true, false, true},
              {7, true, true, true},    {8, false, true, true},  {9, false, false, false}};
  for (const auto& [orientation, right, bottom, turned] : rows) {
    writeJpeg("photograph.jpg", 3, orientation);
    const Surface picture = surfaceOf(load("photograph.jpg"));
    const int width = cairo_image_surface_get_width(picture.get());
    const int height = cairo_image_surface_get_height(picture.get());
    EXPECT_EQ(width, turned ? 8 : 16) << orientation;
    EXPECT_EQ(height, turned ? 16 : 8) << orientation;
    for (const bool atRight : {false, true}) {
      for (const bool atBottom : {false, true}) {
        const int light = pixelAt(picture, atRight ? width - 2 : 1, atBottom ? height - 2 : 1).red;
        EXPECT_NEAR(light, atRight == right && atBottom == bottom ? 100 : 200, 25) << orientation;
      }
    }
  }
}

TEST_F(ImageFiles, WhatIsNoPictureGivesNone) {
  writePng(redPicture(64, 64), local("good.png"));
  const std::string good = contentOf(local("good.png"));
  writeJpeg("good.jpg", 3);
  const std::string jpeg = contentOf(local("good.jpg"));

  std::filesystem::create_directories(local("directory"));
  ASSERT_EQ(mkfifo(local("pipe").c_str(), 0600), 0);
  write("empty", "");
  write("words", "no picture at all");
  write("signature", good.substr(0, 8));
  write("truncated.png", good.substr(0, good.size() / 2));
  std::string huge = good;
  huge.replace(16, 8, std::string("\0\0\xEA\x60\0\0\xEA\x60", 8));
  write("huge.png", huge);
  std::string broken = good;
  broken[40] = static_cast<char>(~broken[40]);
  write("broken.png", broken);
  write("header.jpg", jpeg.substr(0, 20));
  std::string hugeJpeg = jpeg;
  const std::size_t frame = hugeJpeg.find("\xFF\xC0");
  ASSERT_NE(frame, std::string::npos);
  hugeJpeg.replace(frame + 5, 4, "\xEA\x60\xEA\x60");
  write("huge.jpg", hugeJpeg);
  for (const char* const name : {"missing", "directory", "pipe", "empty", "words", "signature",
                                 "truncated.png", "huge.png", "broken.png", "header.jpg", "huge.jpg"}) {
    EXPECT_EQ(load(name), nullptr) << name;
  }
  EXPECT_EQ(UIImage::imageWithContentsOfFile(nullptr), nullptr);
  EXPECT_NE(load("good.png"), nullptr);
  EXPECT_NE(load("good.jpg"), nullptr);
}

TEST_F(ImageFiles, ImageFillsTheRectangleItIsDrawnInto) {
  writePng(redPicture(4, 4), local("red.png"));
  UIGraphicsBeginImageContext({20, 20});
  load("red.png")->drawInRect({{5, 5}, {10, 10}});
  const Surface drawn = surfaceOf(UIGraphicsGetImageFromCurrentImageContext());
  UIGraphicsEndImageContext();
  // Whole up to its edge: the stretched pixels do not fade into what lies beyond.
  for (const int place : {5, 10, 14})
    EXPECT_LE(pixelDistance(pixelAt(drawn, place, place), {128, 0, 0, 128}), 1);
  for (const int place : {4, 15}) EXPECT_EQ(pixelAt(drawn, place, place), kTransparent);
}

}  // namespace
}  // namespace phone
