// Conversion between libplist's trees and Foundation's objects.
#pragma once

#include <memory>
#include <plist/plist.h>
#include <type_traits>

#include "phone/foundation/property_list.h"

namespace phone {

struct PropertyListFree {
  void operator()(plist_t tree) const { plist_free(tree); }
};

/// A libplist tree, owned.
using PropertyListTree = std::unique_ptr<std::remove_pointer_t<plist_t>, PropertyListFree>;

/// Throws std::runtime_error with the reason when the tree holds what has no object here, or broken texts.
objc::Owned<NSObject> objectOf(plist_t tree, Containers containers);

/// Throws std::runtime_error with the reason when the object is not made of property-list kinds.
PropertyListTree treeOf(NSObject* object);

}  // namespace phone
