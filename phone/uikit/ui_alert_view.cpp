#include "phone/uikit/ui_alert_view.h"

#include "phone/uikit/definitions.h"
#include "phone/uikit/uikit_state.h"

namespace phone {

namespace {

/// Takes one further button at most: a list of them ends where the caller says, which callers that know the
/// method by its fixed arguments do not.
UIAlertView* initWithTitle(UIAlertView* self, SEL, NSString* title, NSString* message, NSObject* delegate,
                           NSString* cancelButtonTitle, NSString* otherButtonTitle) {
  auto& alert = stateOf<AlertState>(self);
  alert.title = objc::Owned<NSString>::retain(title);
  alert.message = objc::Owned<NSString>::retain(message);
  alert.delegate = delegate;
  for (NSString* const button : {cancelButtonTitle, otherButtonTitle}) {
    if (button != nullptr) alert.buttonTitles.push_back(objc::Owned<NSString>::retain(button));
  }
  return self;
}

void show(UIAlertView* self, SEL) { uiKit().shownAlerts.push_back(objc::Owned<UIAlertView>::retain(self)); }

}  // namespace

const AlertState& alertState(UIAlertView* alert) { return stateOf<AlertState>(alert); }

const std::vector<objc::Owned<UIAlertView>>& shownAlerts() { return uiKit().shownAlerts; }

void tapAlertButton(UIAlertView* alert, NSInteger buttonIndex) {
  const auto kept = objc::Owned<UIAlertView>::retain(alert);
  std::erase_if(uiKit().shownAlerts, [alert](const auto& each) { return each.get() == alert; });
  objc::sendIfResponds<"alertView:clickedButtonAtIndex:">(stateOf<AlertState>(alert).delegate, alert,
                                                          buttonIndex);
}

ClassDefinition uiAlertView() {
  return {.name = "UIAlertView",
          .superclass = "UIView",
          .state = state<AlertState>(),
          .methods = {
              method("initWithTitle:message:delegate:cancelButtonTitle:otherButtonTitles:", initWithTitle),
              getter<&AlertState::title>("title"),
              getter<&AlertState::message>("message"),
              method("show", show),
          }};
}

}  // namespace phone
