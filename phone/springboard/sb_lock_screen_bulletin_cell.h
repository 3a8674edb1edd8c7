// SBLockScreenBulletinCell, one row of the lock screen list as the phone itself shows it: icon, title with
// the date behind it, subtitle, message, and the hint how to unlock it.
#pragma once

#include <string>

#include "platform/springboard/sb_away_list_item.h"
#include "platform/springboard/sb_lock_screen_bulletin_cell.h"

namespace phone {

/// Fills the cell with what the item says now.
void showItem(SBLockScreenBulletinCell* cell, SBAwayListItem* item);

/// The height in points that the phone's own layout needs for the item.
CGFloat heightOfItem(SBAwayListItem* item);

/// Where a cell's parts lie, in points in the cell's coordinates, and how they are shown.
struct CellLayout {
  std::string dateText;
  CGRect icon;
  CGRect title;
  CGRect date;
  CGRect subtitle;
  CGRect message;
  double contentAlpha;
  bool drawsSeparator;
};

CellLayout layoutOf(SBLockScreenBulletinCell* cell);

}  // namespace phone
