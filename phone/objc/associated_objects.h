// Associated objects, which GCC's runtime lacks. The two functions themselves are declared in
// platform/objc/associated_object.h. They serve every object whose dealloc ends in NSObject's.
#pragma once

#include <cstddef>

#include "platform/objc/associated_object.h"

namespace phone {

/// How many objects of this process have associated objects now.
std::size_t associationOwnerCount();

}  // namespace phone
