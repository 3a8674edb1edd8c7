// The home-screen process: its lock screen classes and the state that they share.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "platform/objc/owned.h"
#include "platform/uikit/ui_image.h"

class SBAwayListItem;

namespace phone {

/// What a tap opened: a URL or an application. Both are empty when it only unlocked the phone.
struct Launch {
  std::string url;
  std::string bundleID;
};

struct SpringBoardState {
  bool screenIsOn = false;
  /// The latest tap's, if there was one.
  std::optional<Launch> launch = std::nullopt;
  std::map<std::string, objc::Owned<UIImage>> notificationIcons = {};
};

/// The state of the one home screen in this process.
SpringBoardState& springBoardState();

/// Opens what the item's record says.
void launch(SBAwayListItem* item);

/// Registers SpringBoard and the lock screen classes, and starts from a fresh state. Call once, after
/// registerUIKit() and registerBulletinBoard().
void registerSpringBoard();

}  // namespace phone
