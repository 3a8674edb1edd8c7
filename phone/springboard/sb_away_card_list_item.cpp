#include "phone/springboard/sb_away_card_list_item.h"

#include "phone/springboard/definitions.h"
#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_string.h"
#include "platform/springboard/sb_away_list_item.h"

namespace phone {

namespace {

struct CardState {
  objc::Owned<NSString> title;
  objc::Owned<NSString> message;
  objc::Owned<NSDate> sortDate;
};

}  // namespace

ClassDefinition sbAwayCardListItem() {
  return {.name = "SBAwayCardListItem",
          .superclass = "SBAwayListItem",
          .state = state<CardState>(),
          .methods = {getter<&CardState::title>("title"), getter<&CardState::message>("message"),
                      getter<&CardState::sortDate>("sortDate")}};
}

objc::Owned<SBAwayListItem> makeCardItem(NSString* title, NSString* message, NSDate* date) {
  auto card = objc::make<SBAwayListItem, "SBAwayCardListItem">();
  stateOf<CardState>(card.get()) = {.title = objc::Owned<NSString>::retain(title),
                                    .message = objc::Owned<NSString>::retain(message),
                                    .sortDate = objc::Owned<NSDate>::retain(date)};
  return card;
}

}  // namespace phone
