// What both rows "Show on Lockscreen" look like.
#pragma once

#include <gtest/gtest.h>

#include "phone/calendarui/item_table.h"
#include "platform/uikit/ui_label.h"

namespace phone {

/// The cell's text and the place of its switch: 15 points from the right edge, half way down, and so after
/// the cell has widened.
inline void expectRowGeometry(UITableViewCell* cell) {
  EXPECT_STREQ(cell->textLabel()->text()->UTF8String(), "Show on Lockscreen");
  UISwitch* const toggle = switchIn(cell);
  ASSERT_NE(toggle, nullptr);
  EXPECT_EQ(toggle->superview(), cell->contentView());
  EXPECT_EQ((objc::send<"tag", NSInteger>(toggle)), 100);
  EXPECT_EQ((objc::send<"autoresizingMask", NSUInteger>(toggle)), 1U);
  for (const double wider : {0.0, 55.0}) {
    CGRect frame = cell->frame();
    frame.size.width += wider;
    cell->setFrame(frame);
    const CGRect content = cell->contentView()->bounds();
    const CGSize size = toggle->sizeThatFits({0, 0});
    EXPECT_EQ(toggle->frame().origin.x, content.size.width - size.width - 15);
    EXPECT_EQ(toggle->frame().origin.y, (content.size.height - size.height) * 0.5);
    EXPECT_EQ(toggle->frame().size.width, size.width);
    EXPECT_EQ(toggle->frame().size.height, size.height);
  }
}

}  // namespace phone
