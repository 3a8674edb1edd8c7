// BBAction, what a tap on a record does: open a URL or an application. Callback blocks are not called: no
// desktop runtime has them, and nothing on the lock screen passes one.
#include "platform/bulletinboard/bb_action.h"

#include "phone/bulletinboard/definitions.h"
#include "platform/foundation/ns_string.h"
#include "platform/foundation/ns_url.h"

namespace phone {

namespace {

struct ActionState {
  objc::Owned<NSURL> launchURL;
  objc::Owned<NSString> launchBundleID;
};

BBAction* makeWithURL(Class, SEL, NSURL* url, id /*callback*/) {
  auto action = objc::make<BBAction>();
  stateOf<ActionState>(action.get()).launchURL = objc::Owned<NSURL>::retain(url);
  return action.autorelease();
}

BBAction* makeWithBundleID(Class, SEL, NSString* bundleID, id /*callback*/) {
  auto action = objc::make<BBAction>();
  stateOf<ActionState>(action.get()).launchBundleID = objc::Owned<NSString>::retain(bundleID);
  return action.autorelease();
}

}  // namespace

ClassDefinition bbAction() {
  return {.name = "BBAction",
          .superclass = "NSObject",
          .state = state<ActionState>(),
          .methods = {classMethod("actionWithLaunchURL:callblock:", makeWithURL),
                      classMethod("actionWithLaunchBundleID:callblock:", makeWithBundleID),
                      getter<&ActionState::launchURL>("launchURL"),
                      getter<&ActionState::launchBundleID>("launchBundleID")}};
}

}  // namespace phone
