// A home screen whose classes only note what reaches their own methods, so that a test sees what the plug-in
// passed on and what it kept back. It can lack what some release of the phone might lack.
#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "phone/foundation/log_sink.h"
#include "platform/bulletinboard/bb_bulletin.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_mutable_array.h"
#include "platform/objc/owned.h"
#include "platform/springboard/sb_away_bulletin_list_item.h"
#include "platform/springboard/sb_lock_screen_bulletin_cell.h"
#include "platform/springboard/sb_lock_screen_notification_list_controller.h"
#include "platform/springboard/sb_lock_screen_notification_list_view.h"
#include "platform/springboard/sb_lock_screen_view.h"
#include "platform/uikit/ns_index_path.h"
#include "platform/uikit/ui_image.h"
#include "platform/uikit/ui_label.h"
#include "platform/uikit/ui_table_view.h"
#include "tests/tavimo/support/plugin_values.h"

namespace phone {

using Texts = std::vector<std::string>;

struct LockScreenShape {
  double foundationVersion = 1144.17;
  bool itemsHaveRecords = true;
  bool cellHasUnlockLabel = true;
  bool listViewHasHeightCache = true;
  bool controllerHasListItems = true;
  /// Runs when all classes are there and the plug-in is not.
  std::function<void()> beforePlugin = {};
};

/// One per process. The plug-in is loaded and enabled; its other settings are zero.
class RecordingLockScreen {
 public:
  /// What the host's own methods answer.
  static constexpr double kHostHeight = 99.5;

  explicit RecordingLockScreen(const LockScreenShape& shape = {});

  /// Adds an item to the list (borrowed). An absent text is none.
  SBAwayBulletinListItem* add(const char* identifier, const char* message = "TVM|#FF0000",
                              const char* subtitle = nullptr);
  /// Adds an item with that record and class.
  SBAwayBulletinListItem* addRecord(BBBulletin* record, const char* itemClass = "SBAwayBulletinListItem");

  /// The cell of that row; its labels measure as their texts say, see measure().
  SBLockScreenBulletinCell* cellAt(NSInteger row, NSInteger section = 0);
  /// From now on texts of that content measure to that size, in any font. Others are 8 points wide a
  /// character and 2 points higher than their font.
  void measure(const char* text, CGSize size);

  double height(NSInteger row);
  bool canEdit(NSInteger row);

  /// What reached the host since the last call, a line each; forgets it.
  Texts calls();
  /// What was logged since the last call; forgets it.
  static Texts log();

  SBLockScreenNotificationListController* controller() { return controller_.get(); }
  SBLockScreenNotificationListView* listView() { return listView_.get(); }
  SBLockScreenView* view() { return view_.get(); }
  /// What the host answers for every item's icon.
  static UIImage* hostIcon();

 private:
  AutoreleasePool pool_;
  objc::Owned<SBLockScreenNotificationListController> controller_;
  objc::Owned<NSMutableArray> items_;
  objc::Owned<SBLockScreenNotificationListView> listView_;
  objc::Owned<SBLockScreenView> view_;
  objc::Owned<UITableView> table_;
};

inline NSString* textOrNone(const char* utf8) {
  return utf8 == nullptr ? nullptr : NSString::stringWithUTF8String(utf8);
}

}  // namespace phone
