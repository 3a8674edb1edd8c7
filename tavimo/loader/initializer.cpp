// The load-time initialiser. It runs once, before the host calls anything, and looks only at the classes that
// exist at that moment.
#include <span>

#include "platform/calendarui/ek_event_detail_item.h"
#include "platform/calendarui/ek_event_edit_item.h"
#include "platform/foundation/autorelease_pool.h"
#include "tavimo/loader/hook_entry.h"
#include "tavimo/settings/settings_model.h"

namespace tavimo {

namespace {

void installInHomeScreen() {
  install(homeScreenEntries());
  isEnabled = false;
}

void installInCalendarProcess() {
  registerClass(objc::classOf<EKEventEditItem>(), editItemVariables(), editItemEntries());
  install(editorEntries());
  registerClass(objc::classOf<EKEventDetailItem>(), {}, detailItemEntries());
}

[[gnu::constructor]] void initialize() {
  const AutoreleasePool pool;
  if (objc::classNamed<"SpringBoard">() != nullptr) {
    installInHomeScreen();
  } else {
    installInCalendarProcess();
  }
}

}  // namespace

}  // namespace tavimo
