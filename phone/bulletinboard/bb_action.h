// BBAction, what a tap on a record does: open a URL or an application. Callback blocks are not called: no
// desktop runtime has them, and nothing on the lock screen passes one.
#pragma once

#include "phone/objc/class_definition.h"

namespace phone {

ClassDefinition bbAction();

}  // namespace phone
