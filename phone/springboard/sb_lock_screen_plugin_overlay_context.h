// SBLockScreenPluginOverlayContext, one screen that a lock screen plug-in lays over the lock screen.
#pragma once

#include "phone/objc/class_definition.h"

namespace phone {

ClassDefinition sbLockScreenPluginOverlayContext();

}  // namespace phone
