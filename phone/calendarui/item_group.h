// Which rows of a calendar screen stand together. Items are known by class; one that the phone does not know
// (a plug-in's) stands with the item before it.
#pragma once

#include <span>
#include <vector>

#include "platform/foundation/ns_array.h"

namespace phone {

/// The group of rows that items of a class belong to.
struct ItemPlace {
  const char* className;
  int group;
};

/// The items in groups, in their order. Items are borrowed; `items` may be none.
std::vector<std::vector<NSObject*>> groupItems(NSArray* items, std::span<const ItemPlace> places);

}  // namespace phone
