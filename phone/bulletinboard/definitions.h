// The framework's class definitions; bulletinboard.cpp registers them in order.
#pragma once

#include "phone/objc/class_definition.h"

namespace phone {

ClassDefinition bbAction();
ClassDefinition bbBulletin();

}  // namespace phone
