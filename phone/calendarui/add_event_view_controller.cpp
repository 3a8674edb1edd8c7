#include "phone/calendarui/add_event_view_controller.h"

namespace phone {

ClassDefinition addEventViewController() {
  return {.name = "AddEventViewController", .superclass = "UIViewController"};
}

objc::Owned<UIViewController> makeAddEventViewController(EKEventEditViewController* frame) {
  auto screen = objc::make<UIViewController, "AddEventViewController">();
  screen->addChildViewController(frame);
  return screen;
}

}  // namespace phone
