// One font at one size: measures and draws lines of text with Pango. Heights are the font's own, whatever
// other fonts a text's characters come from, so that rows keep their heights in every script.
#pragma once

#include <memory>
#include <pango/pangocairo.h>
#include <string>
#include <unordered_map>

#include "phone/uikit/cg_color.h"
#include "platform/coregraphics/cg_geometry.h"

namespace phone {

enum class FontWeight {
  kThin = 100,
  kLight = 300,
  kRegular = 400,
  kMedium = 500,
  kSemibold = 600,
  kBold = 700
};

enum class TextAlignment : NSInteger { kLeft = 0, kCenter = 1, kRight = 2 };

class TypeFace {
 public:
  /// The face of that weight and size in points; the same object for the same request while it is in use.
  static std::shared_ptr<TypeFace> find(FontWeight weight, double points);

  TypeFace(FontWeight weight, double points);
  ~TypeFace();
  TypeFace(const TypeFace&) = delete;
  TypeFace& operator=(const TypeFace&) = delete;

  FontWeight weight() const { return weight_; }
  /// The size in points as it was asked for.
  double points() const { return points_; }
  /// From the baseline up and down to the line's edges, in points.
  double ascent() const { return ascent_; }
  double descent() const { return descent_; }
  /// Whole points.
  double lineHeight() const;

  /// The size of the text on one line in whole points, rounded up; an empty or absent text is 0 by 0.
  CGSize measure(NSString* text);

  /// Draws the text on one line in the middle of the rectangle's height. What does not fit its width is
  /// replaced by an ellipsis at the text's end.
  void draw(cairo_t* canvas, NSString* text, CGRect rect, TextAlignment alignment, const Rgba& color);

 private:
  double widthOf(const std::string& utf8);

  FontWeight weight_;
  double points_;
  /// The size that is shaped; the ratio to the size asked for, when that is beyond what can be.
  double shapedPoints_;
  double ratio_;
  double ascent_ = 0;
  double descent_ = 0;
  PangoFontDescription* description_;
  /// Kept between measurements.
  PangoLayout* layout_ = nullptr;
  /// Widths in points of texts measured lately: a list measures the same few at every layout.
  std::unordered_map<std::string, double> widths_;
};

}  // namespace phone
