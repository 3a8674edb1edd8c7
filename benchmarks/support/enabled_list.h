// A lock screen list on which the plug-in is enabled, in the plain host.
#pragma once

#include "benchmarks/support/plain_host.h"
#include "platform/foundation/autorelease_pool.h"

namespace benchmarks {

/// A list whose items all have one identifier. The plug-in is enabled as long as it lives, and sees it as the
/// phone's one list.
class EnabledList {
 public:
  EnabledList(NSUInteger items, NSString* identifier);
  ~EnabledList() { enabled_ = false; }
  EnabledList(const EnabledList&) = delete;
  EnabledList& operator=(const EnabledList&) = delete;

  /// Borrowed.
  SBLockScreenNotificationListController* controller() { return controller_.get(); }
  /// The second row. Borrowed.
  NSIndexPath* row() { return row_.get(); }

 private:
  AutoreleasePool pool_;
  objc::Owned<SBLockScreenNotificationListController> controller_;
  objc::Owned<NSIndexPath> row_;
  bool& enabled_;
};

}  // namespace benchmarks
