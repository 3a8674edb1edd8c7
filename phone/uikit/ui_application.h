// The running application of a host process.
#pragma once

#include "platform/uikit/ui_application.h"

namespace phone {

/// Makes the application object of that class, UIApplication or a subclass of it, as a program's start does.
/// Before it there is no shared application.
void startApplication(const char* className = "UIApplication");

}  // namespace phone
