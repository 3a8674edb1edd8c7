// Properties of a class that has no instance variables of its own: each value is an object associated with
// the instance under the getter's selector. A boolean is kept as a number object; unset it is false.
#pragma once

#include "platform/foundation/ns_number.h"
#include "platform/objc/associated_object.h"

namespace tavimo {

template <objc::FixedString Name>
NSObject* objectProperty(NSObject* self, SEL /*selector*/) {
  return objc::associated<NSObject>(self, objc::selector<Name>());
}

template <objc::FixedString Name>
void setObjectProperty(NSObject* self, SEL /*selector*/, NSObject* value) {
  objc::associate(self, objc::selector<Name>(), value);
}

template <objc::FixedString Name>
bool flagProperty(NSObject* self, SEL /*selector*/) {
  return objc::associated<NSNumber>(self, objc::selector<Name>())->boolValue();
}

template <objc::FixedString Name>
void setFlagProperty(NSObject* self, SEL /*selector*/, bool value) {
  objc::associate(self, objc::selector<Name>(), NSNumber::numberWithBool(value));
}

}  // namespace tavimo
