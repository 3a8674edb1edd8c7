#include "phone/uikit/type_face.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <hb.h>
#include <map>

#include "phone/uikit/font_map.h"
#include "phone/uikit/layout_text.h"
#include "phone/uikit/text_language.h"

namespace phone {

namespace {

/// Sizes beyond it are shaped at this size and stretched; Pango's own numbers end at some thousands.
constexpr double kMaxShapedPoints = 1000;
/// No line shows more characters than this, so a longer text is cut before it is drawn.
constexpr NSUInteger kMaxDrawnUnits = 4000;
/// A longer text is as wide as its beginning of this length: wider than any screen, and no delay.
constexpr NSUInteger kMaxMeasuredUnits = 100000;

PangoContext* makeContext() {
  PangoContext* const context = pango_font_map_create_context(fontMap());
  // Not the machine's language: it would choose other fonts for the same characters.
  pango_context_set_language(context, pango_language_from_string("en"));
  pango_context_set_round_glyph_positions(context, FALSE);
  cairo_font_options_t* const options = cairo_font_options_create();
  cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
  cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
  pango_cairo_context_set_font_options(context, options);
  cairo_font_options_destroy(options);
  return context;
}

PangoContext* measuringContext() {
  static PangoContext* const context = makeContext();
  return context;
}

/// Follows the transformation of each canvas it draws on.
PangoContext* drawingContext() {
  static PangoContext* const context = makeContext();
  return context;
}

PangoLayout* makeLayout(PangoContext* context, const PangoFontDescription* description) {
  PangoLayout* const layout = pango_layout_new(context);
  pango_layout_set_font_description(layout, description);
  pango_layout_set_single_paragraph_mode(layout, TRUE);
  return layout;
}

void setText(PangoLayout* layout, const std::string& utf8) {
  pango_layout_set_text(layout, utf8.data(), static_cast<int>(utf8.size()));
  PangoAttrList* attributes = nullptr;
  if (PangoLanguage* const language = languageOf(utf8)) {
    attributes = pango_attr_list_new();
    pango_attr_list_insert(attributes, pango_attr_language_new(language));
  }
  pango_layout_set_attributes(layout, attributes);
  if (attributes != nullptr) pango_attr_list_unref(attributes);
}

/// In points. Pango's own sum ends at two million of them.
double lineWidth(PangoLayoutLine* line) {
  std::int64_t width = 0;
  for (const GSList* each = line->runs; each != nullptr; each = each->next) {
    const PangoGlyphString* const glyphs = static_cast<const PangoLayoutRun*>(each->data)->glyphs;
    for (int i = 0; i < glyphs->num_glyphs; ++i) width += glyphs->glyphs[i].geometry.width;
  }
  return static_cast<double>(width) / PANGO_SCALE;
}

}  // namespace

std::shared_ptr<TypeFace> TypeFace::find(FontWeight weight, double points) {
  // A size that is no number would never be found again.
  if (std::isnan(points)) points = 0;
  static std::map<std::pair<FontWeight, double>, std::shared_ptr<TypeFace>> faces;
  constexpr std::size_t kMaxKept = 64;
  const std::pair key(weight, points);
  if (const auto known = faces.find(key); known != faces.end()) return known->second;
  if (faces.size() >= kMaxKept) faces.clear();
  return faces.emplace(key, std::make_shared<TypeFace>(weight, points)).first->second;
}

TypeFace::TypeFace(FontWeight weight, double points)
    : weight_(weight),
      points_(points),
      shapedPoints_(std::clamp(points, 0.0, kMaxShapedPoints)),
      ratio_(points > kMaxShapedPoints ? points / kMaxShapedPoints : 1),
      description_(pango_font_description_new()) {
  pango_font_description_set_family_static(description_, kSystemFontFamily);
  pango_font_description_set_weight(description_, static_cast<PangoWeight>(weight));
  pango_font_description_set_absolute_size(description_, shapedPoints_ * PANGO_SCALE);
  if (!(shapedPoints_ > 0)) return;
  // From the font itself: Pango's own metrics load and measure every font that a sample text needs.
  PangoFont* const font = pango_context_load_font(measuringContext(), description_);
  hb_font_extents_t extents{};
  hb_font_get_h_extents(pango_font_get_hb_font(font), &extents);
  g_object_unref(font);
  ascent_ = ratio_ * extents.ascender / PANGO_SCALE;
  descent_ = ratio_ * -extents.descender / PANGO_SCALE;
}

TypeFace::~TypeFace() {
  if (layout_ != nullptr) g_object_unref(layout_);
  pango_font_description_free(description_);
}

double TypeFace::lineHeight() const { return std::ceil(ascent_ + descent_); }

CGSize TypeFace::measure(NSString* text) {
  if (!(shapedPoints_ > 0) || text->length() == 0) return {};
  return {std::ceil(widthOf(layoutText(text, kMaxMeasuredUnits))), lineHeight()};
}

double TypeFace::widthOf(const std::string& utf8) {
  constexpr std::size_t kMaxKept = 256;
  constexpr std::size_t kMaxBytes = 256;
  if (const auto known = widths_.find(utf8); known != widths_.end()) return known->second;
  if (layout_ == nullptr) layout_ = makeLayout(measuringContext(), description_);
  setText(layout_, utf8);
  const double width = ratio_ * lineWidth(pango_layout_get_line_readonly(layout_, 0));
  if (widths_.size() >= kMaxKept) widths_.clear();
  if (utf8.size() <= kMaxBytes) widths_.emplace(utf8, width);
  return width;
}

void TypeFace::draw(cairo_t* canvas, NSString* text, CGRect rect, TextAlignment alignment,
                    const Rgba& color) {
  const double width = rect.size.width;
  if (!(shapedPoints_ > 0) || !(width > 0) || text->length() == 0) return;
  pango_cairo_update_context(canvas, drawingContext());
  PangoLayout* const layout = makeLayout(drawingContext(), description_);
  setText(layout, layoutText(text, kMaxDrawnUnits));
  pango_layout_set_ellipsize(layout, PANGO_ELLIPSIZE_END);
  // A little room, so that a text in a frame of exactly its measured width is whole.
  constexpr double kRoom = 0.01;
  const double mostWidth = std::min(width + kRoom, 1e6);
  pango_layout_set_width(layout, static_cast<int>(mostWidth * PANGO_SCALE));
  PangoLayoutLine* const line = pango_layout_get_line_readonly(layout, 0);
  const double spare = width - lineWidth(line);
  const double share = alignment == TextAlignment::kRight ? 1 : alignment == TextAlignment::kCenter ? 0.5 : 0;
  const double top = rect.origin.y + (rect.size.height - (ascent_ + descent_)) / 2;
  cairo_save(canvas);
  cairo_new_path(canvas);
  cairo_set_source_rgba(canvas, color.red, color.green, color.blue, color.alpha);
  cairo_move_to(canvas, rect.origin.x + spare * share, top + ascent_);
  pango_cairo_show_layout_line(canvas, line);
  cairo_new_path(canvas);
  cairo_restore(canvas);
  g_object_unref(layout);
}

}  // namespace phone
