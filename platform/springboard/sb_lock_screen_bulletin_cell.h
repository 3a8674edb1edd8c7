// A row of the lock screen list.
#pragma once

#include "platform/uikit/ui_table_view_cell.h"

class SBLockScreenBulletinCell : public UITableViewCell {
 public:
  SBLockScreenBulletinCell() = delete;

  UILabel* primaryLabel() { return objc::send<"primaryLabel", UILabel*>(this); }
  UILabel* subtitleLabel() { return objc::send<"subtitleLabel", UILabel*>(this); }
  UILabel* secondaryLabel() { return objc::send<"secondaryLabel", UILabel*>(this); }
  UILabel* relevanceDateLabel() { return objc::send<"relevanceDateLabel", UILabel*>(this); }
  CGRect contentBounds() { return objc::send<"contentBounds", CGRect>(this); }
  /// iOS 7 only; later cells are left alone.
  void setDrawsSeparators(bool draws) { objc::sendIfResponds<"setDrawsSeparators:">(this, draws); }
  /// iOS 8 and later; earlier cells are left alone.
  void setSeparatorHidden(bool hidden) { objc::sendIfResponds<"_setSeparatorHidden:">(this, hidden); }
  /// iOS 8 and later; earlier cells are left alone.
  void setDrawsSeparatorAtTopOfSection(bool draws) {
    objc::sendIfResponds<"_setDrawsSeparatorAtTopOfSection:">(this, draws);
  }
};
