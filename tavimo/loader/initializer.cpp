// The load-time initialiser. It runs once, before the host calls anything, and looks only at the classes that
// exist at that moment.
#include <span>

#include "platform/foundation/autorelease_pool.h"
#include "tavimo/editor/event_orv_item.h"
#include "tavimo/loader/hook_entry.h"
#include "tavimo/settings/settings_model.h"

namespace tavimo {

namespace {

void installInHomeScreen() {
  install(homeScreenEntries());
  isEnabled = false;
}

/// Makes the event view's item class. It is registered with all its methods in place: from then on the host
/// can use it.
void registerDetailItem() {
  Class const superclass = objc::classNamed<"EKEventDetailItem">();
  if (superclass == nullptr) return;
  const std::span<const HookEntry> entries = detailItemEntries();
  Class const item = objc_allocateClassPair(superclass, entries.front().className, 0);
  if (item == nullptr) return;
  for (const HookEntry& entry : entries) install(entry, item);
  objc_registerClassPair(item);
}

void installInCalendarProcess() {
  registerEventOrvItem();
  install(editorEntries());
  registerDetailItem();
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
