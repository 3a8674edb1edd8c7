// The fields of the event editor, in the order of its list.
#pragma once

#include <vector>

#include "phone/calendarui/item_group.h"
#include "phone/objc/class_definition.h"

namespace phone {

/// EKEventEditItem and the class of each field, superclass first.
std::vector<ClassDefinition> editItemClasses();

/// The running release's fields in list order, each with its group of rows.
std::vector<ItemPlace> editItemPlaces();

}  // namespace phone
