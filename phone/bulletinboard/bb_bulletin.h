// BBBulletin, a notification record: plain fields that its publisher sets and the lock screen reads.
#pragma once

#include "phone/objc/class_definition.h"

namespace phone {

ClassDefinition bbBulletin();

}  // namespace phone
