// Measuring texts, and labels that draw them.
#include <cmath>
#include <limits>
#include <vector>

#include "phone/uikit/ui_color.h"
#include "phone/uikit/ui_font.h"
#include "phone/uikit/ui_view.h"
#include "phone/uikit/view_drawing.h"
#include "platform/uikit/string_drawing.h"
#include "platform/uikit/ui_label.h"
#include "tests/support/built.h"
#include "tests/support/picture_comparison.h"
#include "tests/uikit/uikit_test.h"

namespace phone {
namespace {

constexpr const char* kScripts[] = {
    "Grüße, AVA", "مرحبا بالعالم", "שלום עולם", "日本語の会議", "🎉🧑‍💻👍🏽🇩🇪",
    "हिन्दी ไทย",  "주간 회의",     "每周会议"};
/// A text in each script that comes with a bold face.
constexpr const char* kBoldScripts[] = {"Grüße",     "Ω Я",      "مرحبا",   "שלום", "日本語の会議",
                                        "주간 회의", "每周会议", "हिन्दी",   "ไทย",  "বাংলা",
                                        "தமிழ்",      "Հայերեն",  "ქართული", "አማርኛ"};

class Text : public UIKitTest {
 protected:
  static double widthOf(NSString* text, double points = 14) {
    return sizeWithFont(text, UIFont::systemFontOfSize(points)).width;
  }
  static double heightOf(NSString* text, double points = 14) {
    return sizeWithFont(text, UIFont::systemFontOfSize(points)).height;
  }
  static NSString* units(std::vector<char16_t> characters) {
    return objc::sendToClass<NSString, "stringWithCharacters:length:", NSString*>(
        characters.data(), NSUInteger{characters.size()});
  }

  static UIFont* boldFont(double points) {
    return objc::sendToClass<UIFont, "boldSystemFontOfSize:", UIFont*>(CGFloat{points});
  }

  /// A label of that width with the text in black on white, at two pixels a point.
  static Surface draw(NSString* text, double width, TextAlignment alignment = TextAlignment::kLeft,
                      UIFont* font = UIFont::systemFontOfSize(17)) {
    const auto label = makeView<UILabel>({{0, 0}, {width, 30}});
    label->setText(text);
    label->setFont(font);
    objc::send<"setTextAlignment:">(label.get(), static_cast<NSInteger>(alignment));
    objc::send<"setBackgroundColor:">(label.get(), UIColor::whiteColor());
    return pictureOfView(label.get(), 2);
  }

  /// The first and the last column of pixels with ink; -1 for none.
  struct Ink {
    int first = -1;
    int last = -1;
  };
  static Ink inkOf(const Surface& picture) {
    Ink ink;
    for (int x = 0; x < cairo_image_surface_get_width(picture.get()); ++x) {
      for (int y = 0; y < cairo_image_surface_get_height(picture.get()); ++y) {
        const Pixel pixel = pixelAt(picture, x, y);
        if (pixelDistance(pixel, {255, 255, 255, 255}) < 64) continue;
        if (ink.first < 0) ink.first = x;
        ink.last = x;
      }
    }
    return ink;
  }
};

/// How much black the picture has: the sum of what each pixel lacks of white.
double blackIn(const Surface& picture) {
  double black = 0;
  for (int x = 0; x < cairo_image_surface_get_width(picture.get()); ++x) {
    for (int y = 0; y < cairo_image_surface_get_height(picture.get()); ++y) {
      black += pixelDistance(pixelAt(picture, x, y), {255, 255, 255, 255});
    }
  }
  return black;
}

bool samePixels(const Surface& left, const Surface& right, int columns) {
  for (int x = 0; x < columns; ++x) {
    for (int y = 0; y < cairo_image_surface_get_height(left.get()); ++y) {
      if (!(pixelAt(left, x, y) == pixelAt(right, x, y))) return false;
    }
  }
  return true;
}

TEST_F(Text, LineHeightsAreWholeAndGrowWithTheFont) {
  double before = 0;
  for (int points = 1; points <= 200; ++points) {
    const double height = heightOf("A"_ns, points);
    EXPECT_EQ(height, std::floor(height));
    EXPECT_GE(height, before) << points;
    EXPECT_GE(height, points);
    EXPECT_LE(height, points * 1.5 + 1) << points;
    before = height;
  }
}

TEST_F(Text, EveryScriptHasTheSystemFontsLineHeightAndAWidth) {
  for (const char* const script : kScripts) {
    EXPECT_EQ(heightOf(text(script)), heightOf("A"_ns)) << script;
    EXPECT_GT(widthOf(text(script)), 14) << script;
    EXPECT_LT(widthOf(text(script)), 200) << script;
  }
  // A mark stands over its letter and takes no room.
  EXPECT_EQ(widthOf(text("e\u0301\u0308\u0323")), widthOf("e"_ns));
}

TEST_F(Text, EmptyAndAbsentTextsMeasureNothing) {
  const CGSize empty = sizeWithFont(""_ns, UIFont::systemFontOfSize(14));
  const CGSize absent = sizeWithFont(nullptr, UIFont::systemFontOfSize(14));
  const CGSize withoutFont = sizeWithFont("A"_ns, nullptr);
  for (const CGSize size : {empty, absent, withoutFont}) {
    EXPECT_EQ(size.width, 0);
    EXPECT_EQ(size.height, 0);
  }
}

TEST_F(Text, LineBreaksAndControlsCountAsSpaces) {
  const double spaced = widthOf("one two"_ns);
  for (const char16_t control : {u'\n', u'\r', u'\t', u'\0', u'\x7F', u'\x85', u'\u2028', u'\u2029'}) {
    EXPECT_EQ(widthOf(units({u'o', u'n', u'e', control, u't', u'w', u'o'})), spaced) << int{control};
  }
  EXPECT_EQ(heightOf("one\ntwo\nthree"_ns), heightOf("one"_ns));
}

TEST_F(Text, LongTextsAreAsWideAsTheirParts) {
  const double one = widthOf(text(std::string(1000, 'a')));
  EXPECT_NEAR(widthOf(text(std::string(10000, 'a'))), 10 * one, 10);
  // No screen is as wide as this many letters; what is beyond them is not looked at.
  const double most = widthOf(text(std::string(100000, 'a')), 1000);
  EXPECT_NEAR(most, 100 * one * 1000 / 14, 0.01 * most);
  EXPECT_EQ(widthOf(text(std::string(3000000, 'a')), 1000), most);
}

TEST_F(Text, HostileTextsAndSizesGiveFiniteSizesAndAreDrawn) {
  std::vector<char16_t> marks = {u'Z'};
  marks.resize(5000, u'\u0351');
  const std::vector<char16_t> overrides(5000, u'\u202E');
  std::vector<char16_t> joined;
  for (int i = 0; i < 1000; ++i) joined.insert(joined.end(), {0xD83D, 0xDC68, 0x200D});
  for (NSString* const hostile :
       {units({0xD800}), units({0xDC00, 0xD800}), units({u'a', 0xD800, u'b'}), units(marks), units(overrides),
        units(joined), text(std::string(10000, ' '))}) {
    for (const double points : {14.0, 2147483647.0, -3.0, 0.0, std::numeric_limits<double>::quiet_NaN()}) {
      const CGSize size = sizeWithFont(hostile, UIFont::systemFontOfSize(points));
      EXPECT_TRUE(std::isfinite(size.width) && std::isfinite(size.height)) << points;
      EXPECT_GE(size.width, 0) << points;
    }
    EXPECT_NE(draw(hostile, 200), nullptr);
  }
}

TEST_F(Text, FontsKeepTheirWeightAtAnotherSize) {
  UIFont* const smaller = boldFont(20)->fontWithSize(12);
  EXPECT_EQ(smaller->pointSize(), 12);
  EXPECT_TRUE(smaller->isEqual(boldFont(12)));
  EXPECT_FALSE(smaller->isEqual(UIFont::systemFontOfSize(12)));
  EXPECT_GT(sizeWithFont("Title"_ns, smaller).width, widthOf("Title"_ns, 12));
}

TEST_F(Text, BoldIsBoldInEveryScript) {
  for (const char* const script : kBoldScripts) {
    const double regular = blackIn(draw(text(script), 200));
    EXPECT_GT(regular, 0) << script;
    EXPECT_GT(blackIn(draw(text(script), 200, TextAlignment::kLeft, boldFont(17))), 1.15 * regular) << script;
  }
}

TEST_F(Text, SharedCharactersHaveTheFormsOfTheTextsLanguage) {
  // This character is drawn differently in each of the two; 17 points wide, it fills the first 34 columns.
  constexpr int kColumns = 34;
  const Surface chinese = draw(text("直飞"), 200);
  const Surface japanese = draw(text("直の"), 200);
  EXPECT_FALSE(samePixels(chinese, japanese, kColumns));
  EXPECT_TRUE(samePixels(draw(text("直达"), 200), chinese, kColumns));
  EXPECT_TRUE(samePixels(draw(text("直ス"), 200), japanese, kColumns));
  EXPECT_TRUE(samePixels(draw(text("한国"), 200), draw(text("한글"), 200), kColumns - 2));
}

TEST_F(Text, LabelOfTheMeasuredWidthShowsTheWholeText) {
  for (const char* const script : kScripts) {
    const double width = widthOf(text(script), 17);
    const Ink exact = inkOf(draw(text(script), width));
    const Ink roomy = inkOf(draw(text(script), width + 50));
    EXPECT_EQ(exact.first, roomy.first) << script;
    EXPECT_EQ(exact.last, roomy.last) << script;
  }
}

TEST_F(Text, LabelCutsWhatDoesNotFitAtTheTextsEnd) {
  // Latin texts end at the right, so their beginning stays; Arabic ones end at the left.
  const Surface latin = draw("Beginning and a long end of a text"_ns, 100);
  const Surface whole = draw("Beginning and a long end of a text"_ns, 600);
  EXPECT_LE(inkOf(latin).last, 200);
  EXPECT_GT(inkOf(latin).last, 150);
  EXPECT_GT(inkOf(whole).last, 400);
  for (int x = 0; x < 100; ++x) {
    for (int y = 0; y < 60; ++y) ASSERT_EQ(pixelAt(latin, x, y), pixelAt(whole, x, y));
  }
  NSString* const arabic = text("اجتماع الفريق في مكتب برلين صباح يوم الاثنين القادم");
  const Surface cut = draw(arabic, 100, TextAlignment::kRight);
  const Surface uncut = draw(arabic, 600, TextAlignment::kRight);
  for (int x = 0; x < 100; ++x) {
    for (int y = 0; y < 60; ++y) ASSERT_EQ(pixelAt(cut, 199 - x, y), pixelAt(uncut, 1199 - x, y));
  }
}

TEST_F(Text, AlignmentPlacesTheLine) {
  const int ink = inkOf(draw("Date"_ns, 200)).last;
  const Ink right = inkOf(draw("Date"_ns, 200, TextAlignment::kRight));
  const Ink center = inkOf(draw("Date"_ns, 200, TextAlignment::kCenter));
  EXPECT_GE(right.last, 390);
  EXPECT_NEAR(right.first, 400 - ink, 6);
  EXPECT_NEAR(center.first + center.last, 400, 8);
}

TEST_F(Text, AllScriptsLookAsTheyDid) {
  const auto page = makeView<UIView>({{0, 0}, {400, 26.0 * std::size(kScripts)}});
  objc::send<"setBackgroundColor:">(page.get(), UIColor::whiteColor());
  double top = 0;
  for (const char* const script : kScripts) {
    double left = 5;
    for (UIFont* const font : {UIFont::systemFontOfSize(17), boldFont(17)}) {
      const auto label = makeView<UILabel>({{left, top}, {190, 26}});
      label->setText(text(script));
      label->setFont(font);
      page->addSubview(label.get());
      left += 200;
    }
    top += 26;
  }
  EXPECT_TRUE(
      matchesPicture(pictureOfView(page.get(), 2), sourceFolder() / "tests/uikit/pictures/scripts.png"));
}

}  // namespace
}  // namespace phone
