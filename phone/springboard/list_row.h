// One row of the lock screen list as plain values, for commands and tests.
#pragma once

#include <optional>
#include <string>

#include "phone/springboard/sb_lock_screen_bulletin_cell.h"

class SBAwayListItem;

namespace phone {

/// Texts are UTF-8; an absent text is empty. Times are seconds since 1 January 2001 UTC.
struct ListRow {
  std::string itemClass = {};
  std::string identifier = {};
  std::string section = {};
  std::string title = {};
  std::string subtitle = {};
  std::string message = {};
  bool isAllDay = false;
  std::optional<double> date = std::nullopt;
  std::optional<double> endDate = std::nullopt;
  std::optional<double> publicationDate = std::nullopt;
  std::optional<double> lastInterruptDate = std::nullopt;
  /// What a tap opens: a URL or an application's identifier; both are empty when a tap only unlocks.
  std::string launchURL = {};
  std::string launchBundleID = {};
  /// Its rectangle on the screen in points, in sight or not; nothing while the phone is unlocked.
  std::optional<CGRect> frame = std::nullopt;
  /// How its cell shows it; nothing while it is out of sight.
  std::optional<CellLayout> cell = std::nullopt;
};

/// What the item says now. An item without a record has only class, title, subtitle and message.
ListRow listRowOf(SBAwayListItem* item);

}  // namespace phone
