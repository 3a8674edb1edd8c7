// A list whose items the test chooses, with the plug-in enabled and its host's answers recorded.
#pragma once

#include <gtest/gtest.h>
#include <string>

#include "phone/foundation/log_sink.h"
#include "phone/objc/class_definition.h"
#include "phone/springboard/sb_away_card_list_item.h"
#include "phone/springboard/sb_lock_screen_notification_list_controller.h"
#include "platform/springboard/sb_away_bulletin_list_item.h"
#include "tests/tavimo/support/script.h"

namespace phone {

class ListFixture : public testing::Test {
 protected:
  explicit ListFixture(const std::function<void()>& watchHost) : phone_({.beforePlugin = watchHost}) {
    registerClass({.name = "SBOtherBulletinListItem", .superclass = "SBAwayBulletinListItem"});
    registerClass({.name = "OtherBulletin", .superclass = "BBBulletin"});
    phone_.load();
    exported<bool>("debugMode") = true;
    sentMessages().clear();
    clearLog();
  }

  /// A record; "none" has no identifier.
  static objc::Owned<BBBulletin> record(const std::string& identifier, const char* className = "BBBulletin") {
    auto bulletin = objc::Owned<BBBulletin>::adopt(objc::send<"new", BBBulletin*>(objc_getClass(className)));
    if (identifier != "none") bulletin->setBulletinID(text(identifier));
    bulletin->setTitle(text(identifier));
    return bulletin;
  }

  /// A list item: "card" has no record; "other class: X" is of a subclass that the phone might have.
  static objc::Owned<SBAwayListItem> item(const std::string& what) {
    static const std::string otherClass = "other class: ";
    if (what == "card") return makeCardItem(text("card"), text("pass"), dateAt(kMorning));
    const bool isOther = what.starts_with(otherClass);
    Class const itemClass =
        static_cast<Class>(objc_getClass(isOther ? "SBOtherBulletinListItem" : "SBAwayBulletinListItem"));
    auto* const allocated = objc::send<"alloc", SBAwayBulletinListItem*>(itemClass);
    const auto bulletin = record(isOther ? what.substr(otherClass.size()) : what);
    return objc::Owned<SBAwayListItem>::adopt(allocated->initWithBulletin(bulletin.get(), nullptr));
  }

  /// Makes the list hold these items.
  void list(const Lines& items) {
    NSMutableArray* const held = listItems(phone_.controller());
    held->removeAllObjects();
    for (const std::string& what : items) held->addObject(item(what).get());
  }

  LockScreen phone_;
};

/// The lines with the plug-in's prefix in front.
inline Lines prefixed(Lines lines) {
  for (std::string& line : lines) line.insert(0, "TVM: ");
  return lines;
}

}  // namespace phone
