#include "phone/calendarui/calendar_screen.h"

#include <algorithm>
#include <stdexcept>

#include "phone/foundation/foundation.h"
#include "phone/uikit/ui_view.h"
#include "phone/uikit/view_drawing.h"
#include "platform/foundation/ns_string.h"
#include "platform/uikit/ui_color.h"
#include "platform/uikit/ui_font.h"
#include "platform/uikit/ui_label.h"

namespace phone {

namespace {

// Points, as on the phone.
constexpr double kBarHeight = 64;
constexpr double kStatusHeight = 20;
constexpr double kGroupGap = 35;
constexpr double kFieldHeight = 44;
constexpr double kInset = 15;
constexpr double kButtonWidth = 70;
constexpr double kTextSize = 17;

using enum UILabel::Alignment;

UIColor* color(double red, double green, double blue) { return UIColor::colorWithRed(red, green, blue, 1); }
UIColor* backdropColor() { return color(0.937, 0.937, 0.957); }
UIColor* barColor() { return color(0.97, 0.97, 0.97); }
UIColor* rowColor() { return color(1, 1, 1); }
UIColor* lineColor() { return color(0.784, 0.78, 0.8); }
UIColor* tintColor() { return color(1, 0.231, 0.188); }
UIColor* textColor() { return color(0, 0, 0); }

/// Puts the parts of a screen below one another.
class Sheet {
 public:
  Sheet(const ScreenBar& bar, const ItemTable& table)
      : width_(hostOptions().screenWidth), view_(makeView<UIView>()) {
    view_->setBackgroundColor(backdropColor());
    addBar(bar);
    for (const auto& cells : table.groups) addGroup(cells);
    if (!bar.deleteButton.empty()) addDeleteButton(bar.deleteButton);
    view_->setFrame({{0, 0}, {width_, std::max(bottom_ + kGroupGap, hostOptions().screenHeight)}});
    view_->layoutIfNeeded();
  }

  UIView* view() const { return view_.get(); }

 private:
  void addBar(const ScreenBar& bar) {
    addBlock({{0, 0}, {width_, kBarHeight}}, barColor());
    addLine(0, kBarHeight);
    const double middle = kInset + kButtonWidth;
    addText(bar.leftButton, {{kInset, kStatusHeight}, {kButtonWidth, kFieldHeight}}, tintColor(), kLeft);
    UILabel* const title = addText(bar.title, {{middle, kStatusHeight}, {width_ - 2 * middle, kFieldHeight}},
                                   textColor(), kCenter);
    title->setFont(objc::sendToClass<UIFont, "boldSystemFontOfSize:", UIFont*>(CGFloat{kTextSize}));
    addText(bar.rightButton, {{width_ - middle, kStatusHeight}, {kButtonWidth, kFieldHeight}}, tintColor(),
            kRight);
    bottom_ = kBarHeight;
  }

  void addGroup(const std::vector<objc::Owned<UITableViewCell>>& cells) {
    beginGroup();
    for (std::size_t i = 0; i < cells.size(); ++i) {
      const double height = cells[i]->frame().size.height;
      const double top = bottom_;
      addRow(cells[i].get(), height);
      // Lines of text that belong together are not separated.
      if (i > 0 && height >= kFieldHeight) addLine(kInset, top);
    }
    const bool endsInText = !cells.empty() && cells.back()->frame().size.height < kFieldHeight;
    if (endsInText) addMargin();
    addLine(0, bottom_);
  }

  void addDeleteButton(const std::string& text) {
    beginGroup();
    const CGRect frame{{0, bottom_}, {width_, kFieldHeight}};
    addBlock(frame, rowColor());
    addText(text, frame, tintColor(), kCenter);
    bottom_ += kFieldHeight;
    addLine(0, bottom_);
  }

  void beginGroup() {
    bottom_ += kGroupGap;
    addLine(0, bottom_);
  }

  void addRow(UITableViewCell* cell, double height) {
    cell->setFrame({{0, bottom_}, {width_, height}});
    cell->setBackgroundColor(rowColor());
    view_->addSubview(cell);
    bottom_ += height;
  }

  /// White space below lines of text.
  void addMargin() {
    constexpr double kMargin = 10;
    addBlock({{0, bottom_}, {width_, kMargin}}, rowColor());
    bottom_ += kMargin;
  }

  void addBlock(CGRect frame, UIColor* color) {
    auto block = makeView<UIView>(frame);
    block->setBackgroundColor(color);
    view_->addSubview(block.get());
  }

  void addLine(double left, double y) { addBlock({{left, y - 0.5}, {width_ - left, 0.5}}, lineColor()); }

  UILabel* addText(const std::string& text, CGRect frame, UIColor* color, UILabel::Alignment alignment) {
    auto label = makeView<UILabel>(frame);
    label->setFont(UIFont::systemFontOfSize(kTextSize));
    label->setTextColor(color);
    label->setText(NSString::stringWithUTF8String(text.c_str()));
    label->setTextAlignment(alignment);
    view_->addSubview(label.get());
    return label.get();
  }

  double width_;
  objc::Owned<UIView> view_;
  double bottom_ = 0;
};

}  // namespace

CalendarScreen describe(const ScreenBar& bar, const ItemTable& table) {
  const Sheet sheet(bar, table);
  CalendarScreen screen{.bar = bar, .groups = {}};
  for (const auto& cells : table.groups) {
    auto& rows = screen.groups.emplace_back();
    for (const auto& cell : cells) rows.push_back(rowOf(cell.get()));
  }
  return screen;
}

Surface drawScreen(const ScreenBar& bar, const ItemTable& table) {
  Surface picture = pictureOfView(Sheet(bar, table).view(), hostOptions().screenScale);
  if (picture == nullptr) throw std::runtime_error("the screen is too large to be drawn");
  return picture;
}

}  // namespace phone
