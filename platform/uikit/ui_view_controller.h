// Manages one screen or a part of one.
#pragma once

#include "platform/foundation/ns_object.h"

class UIView;

class UIViewController : public NSObject {
 public:
  UIViewController() = delete;

  /// Nil for a controller that stands alone.
  UIViewController* parentViewController() {
    return objc::send<"parentViewController", UIViewController*>(this);
  }
  void addChildViewController(UIViewController* child) { objc::send<"addChildViewController:">(this, child); }
  void removeFromParentViewController() { objc::send<"removeFromParentViewController">(this); }

  /// Loads the view at the first call.
  UIView* view() { return objc::send<"view", UIView*>(this); }
  void setView(UIView* view) { objc::send<"setView:">(this, view); }
  void loadView() { objc::send<"loadView">(this); }
  void viewDidLoad() { objc::send<"viewDidLoad">(this); }
  void viewWillAppear(bool animated) { objc::send<"viewWillAppear:">(this, animated); }
  void viewWillDisappear(bool animated) { objc::send<"viewWillDisappear:">(this, animated); }
};
