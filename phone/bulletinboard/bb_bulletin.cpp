// BBBulletin, a notification record: plain fields that its publisher sets and the lock screen reads.
#include "platform/bulletinboard/bb_bulletin.h"

#include "phone/bulletinboard/definitions.h"
#include "platform/bulletinboard/bb_action.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_date.h"

namespace phone {

namespace {

struct BulletinState {
  objc::Owned<NSString> bulletinID;
  objc::Owned<NSString> section;
  objc::Owned<NSString> title;
  objc::Owned<NSString> subtitle;
  objc::Owned<NSString> message;
  objc::Owned<NSDate> date;
  objc::Owned<NSDate> endDate;
  objc::Owned<NSDate> publicationDate;
  objc::Owned<NSDate> lastInterruptDate;
  objc::Owned<BBAction> defaultAction;
  bool dateIsAllDay = false;
  bool showsMessagePreview = false;
};

// No address: a log of the same phone at the same time reads the same.
NSString* describe(NSObject* self, SEL) {
  const auto& bulletin = stateOf<BulletinState>(self);
  return NSString::stringWithFormat("<BBBulletin %@: %@>"_ns, bulletin.bulletinID.get(),
                                    bulletin.title.get());
}

}  // namespace

ClassDefinition bbBulletin() {
  using State = BulletinState;
  return {.name = "BBBulletin",
          .superclass = "NSObject",
          .state = state<State>(),
          .methods = {property<&State::bulletinID, "bulletinID">(), property<&State::section, "section">(),
                      property<&State::title, "title">(), property<&State::subtitle, "subtitle">(),
                      property<&State::message, "message">(), property<&State::date, "date">(),
                      property<&State::endDate, "endDate">(),
                      property<&State::publicationDate, "publicationDate">(),
                      property<&State::lastInterruptDate, "lastInterruptDate">(),
                      property<&State::defaultAction, "defaultAction">(),
                      property<&State::dateIsAllDay, "dateIsAllDay">(),
                      property<&State::showsMessagePreview, "showsMessagePreview">(),
                      method("description", describe)}};
}

}  // namespace phone
