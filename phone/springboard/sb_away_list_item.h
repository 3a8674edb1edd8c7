// SBAwayListItem, what all items of the lock screen list have in common.
#pragma once

#include "phone/objc/class_definition.h"

namespace phone {

ClassDefinition sbAwayListItem();

}  // namespace phone
