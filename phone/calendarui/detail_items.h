// The parts of the event view, in the order of its list.
#pragma once

#include <vector>

#include "phone/calendarui/item_group.h"
#include "phone/objc/class_definition.h"

namespace phone {

/// EKEventDetailItem and the class of each part, superclass first.
std::vector<ClassDefinition> detailItemClasses();

/// The parts in list order, each with its group of rows.
std::vector<ItemPlace> detailItemPlaces();

}  // namespace phone
