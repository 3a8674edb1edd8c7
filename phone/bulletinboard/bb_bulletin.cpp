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
          .methods = {getter<&State::bulletinID>("bulletinID"),
                      setter<&State::bulletinID>("setBulletinID:"),
                      getter<&State::section>("section"),
                      setter<&State::section>("setSection:"),
                      getter<&State::title>("title"),
                      setter<&State::title>("setTitle:"),
                      getter<&State::subtitle>("subtitle"),
                      setter<&State::subtitle>("setSubtitle:"),
                      getter<&State::message>("message"),
                      setter<&State::message>("setMessage:"),
                      getter<&State::date>("date"),
                      setter<&State::date>("setDate:"),
                      getter<&State::endDate>("endDate"),
                      setter<&State::endDate>("setEndDate:"),
                      getter<&State::publicationDate>("publicationDate"),
                      setter<&State::publicationDate>("setPublicationDate:"),
                      getter<&State::lastInterruptDate>("lastInterruptDate"),
                      setter<&State::lastInterruptDate>("setLastInterruptDate:"),
                      getter<&State::defaultAction>("defaultAction"),
                      setter<&State::defaultAction>("setDefaultAction:"),
                      getter<&State::dateIsAllDay>("dateIsAllDay"),
                      setter<&State::dateIsAllDay>("setDateIsAllDay:"),
                      getter<&State::showsMessagePreview>("showsMessagePreview"),
                      setter<&State::showsMessagePreview>("setShowsMessagePreview:"),
                      method("description", describe)}};
}

}  // namespace phone
