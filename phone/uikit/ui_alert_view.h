// Alerts: those on screen, and the finger that closes them.
#pragma once

#include <vector>

#include "platform/foundation/ns_string.h"
#include "platform/objc/owned.h"
#include "platform/uikit/ui_alert_view.h"

namespace phone {

struct AlertState {
  objc::Owned<NSString> title;
  objc::Owned<NSString> message;
  std::vector<objc::Owned<NSString>> buttonTitles;
  /// Not owned.
  NSObject* delegate = nullptr;
};

/// What the alert says.
const AlertState& alertState(UIAlertView* alert);

/// The alerts on screen, the last one on top.
const std::vector<objc::Owned<UIAlertView>>& shownAlerts();

/// Taps a button of an alert on screen: the alert closes and its delegate is told, if it wants to know.
void tapAlertButton(UIAlertView* alert, NSInteger buttonIndex);

}  // namespace phone
