// A message box.
#pragma once

#include "platform/foundation/ns_object.h"

class UIAlertView : public NSObject {
 public:
  UIAlertView() = delete;

  /// Takes over the result of alloc; `otherButtonTitles` ends the list of further buttons.
  UIAlertView* initWithTitle(NSString* title, NSString* message, NSObject* delegate,
                             NSString* cancelButtonTitle, NSString* otherButtonTitles) {
    return objc::send<"initWithTitle:message:delegate:cancelButtonTitle:otherButtonTitles:", UIAlertView*>(
        this, title, message, delegate, cancelButtonTitle, otherButtonTitles);
  }
  void show() { objc::send<"show">(this); }
};
