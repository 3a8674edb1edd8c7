#include "tavimo/editor/lock_screen_row.h"

#include "platform/foundation/literal.h"
#include "platform/uikit/ui_label.h"

namespace tavimo {

namespace {

constexpr CGFloat kSwitchRightMargin = 15;
constexpr NSInteger kSwitchTag = 100;

/// Where the switch stands in the cell's content, in points.
CGRect switchFrame(CGRect content, CGSize size) {
  return {{content.size.width - size.width - kSwitchRightMargin,
           (content.size.height - size.height) * CGFloat{0.5}},
          size};
}

}  // namespace

LockScreenRow makeLockScreenRow(NSObject* target) {
  LockScreenRow row{objc::make<UITableViewCell>(), objc::make<UISwitch>()};
  row.cell->textLabel()->setText("Show on Lockscreen"_ns);
  UIView* const content = row.cell->contentView();
  row.toggle->setFrame(switchFrame(content->bounds(), row.toggle->sizeThatFits({0, 0})));
  row.toggle->setAutoresizingMask(UIView::kFlexibleLeftMargin);
  row.toggle->setTag(kSwitchTag);
  row.toggle->addTarget(target, objc::selector<"switchChanged:">(), UISwitch::kValueChanged);
  content->addSubview(row.toggle.get());
  return row;
}

}  // namespace tavimo
