// SBAwayBulletinListItem, the list item of one notification record.
#pragma once

#include "phone/objc/class_definition.h"

namespace phone {

ClassDefinition sbAwayBulletinListItem();

}  // namespace phone
