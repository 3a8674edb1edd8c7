// SBAwayListItem, what all items of the lock screen list have in common.
#include "platform/springboard/sb_away_list_item.h"

#include "phone/springboard/definitions.h"
#include "platform/foundation/literal.h"

namespace phone {

namespace {

// An item is a key of the list view's height cache, and dictionaries copy their keys: the copy is the item.
id copyWithZone(SBAwayListItem* self, SEL, void* /*zone*/) { return objc::send<"retain", id>(self); }

NSString* noText(SBAwayListItem*, SEL) { return nullptr; }
NSDate* noDate(SBAwayListItem*, SEL) { return nullptr; }
UIImage* noImage(SBAwayListItem*, SEL) { return nullptr; }
bool cannotBeCleared(SBAwayListItem*, SEL) { return false; }

NSString* describe(SBAwayListItem* self, SEL) {
  return NSString::stringWithFormat("<%@: %@>"_ns, NSStringFromClass(object_getClass(self)), self->title());
}

}  // namespace

ClassDefinition sbAwayListItem() {
  return {.name = "SBAwayListItem",
          .superclass = "NSObject",
          .methods = {method("title", noText), method("subtitle", noText), method("message", noText),
                      method("sortDate", noDate), method("iconImage", noImage),
                      method("canBeClearedByNotificationCenter", cannotBeCleared),
                      method("copyWithZone:", copyWithZone), method("description", describe)}};
}

}  // namespace phone
