// BBObserver, the party in whose name records are added to a list and taken out again.
#pragma once

#include "phone/objc/class_definition.h"

namespace phone {

ClassDefinition bbObserver();

}  // namespace phone
