#include "tavimo/editor/event_visibility.h"

#include "platform/foundation/ns_url.h"
#include "tavimo/events/hidden_event_store.h"

namespace tavimo {

NSString* externalURLText(EKCalendarItem* item) { return item->externalURI()->absoluteString(); }

bool isShownOnLockScreen(NSString* urlText) {
  return urlText == nullptr || !isHiddenEvent(loadHiddenEvents(), hiddenEventKey(urlText));
}

}  // namespace tavimo
