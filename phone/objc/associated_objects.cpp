#include "phone/objc/associated_objects.h"

#include <map>
#include <unordered_map>

#include "phone/objc/hooking.h"
#include "platform/foundation/ns_object.h"
#include "platform/objc/owned.h"

namespace phone {

namespace {

/// The platform's policies: what is kept of the value.
enum Policy : std::uintptr_t { kAssign = 0, kRetain = 1, kCopy = 3, kPolicyMask = 3 };

/// A value under a key: owned, unless the policy says assign.
class Association {
 public:
  Association(id value, std::uintptr_t policy) : plain_(value) {
    switch (policy & kPolicyMask) {
      case kAssign:
        break;
      case kCopy:
        owned_ = objc::Owned<objc_object>::adopt(objc::send<"copy", id>(value));
        break;
      default:
        owned_ = objc::Owned<objc_object>::retain(value);
    }
    if (owned_) plain_ = owned_.get();
  }
  id value() const { return plain_; }

 private:
  id plain_;
  objc::Owned<objc_object> owned_;
};

using Associations = std::map<const void*, Association>;

// Never destroyed: objects are released until the very end of the process.
std::unordered_map<id, Associations>& owners() {
  static auto& all = *new std::unordered_map<id, Associations>;
  return all;
}

objc::Displaced<void(id, SEL)> originalDealloc;

/// An object's associations outlive its own dealloc, whose code may still ask for them; then they are
/// released.
void deallocWithAssociations(id self, SEL selector) {
  originalDealloc(self, selector);
  if (owners().empty()) return;
  // Taken out first: releasing a value may deallocate further owners.
  const auto released = owners().extract(self);
}

/// Processes without associated objects keep NSObject's own dealloc.
void watchDealloc() {
  static const HookResult watched =
      hookMethod(objc::classOf<NSObject>(), "dealloc", deallocWithAssociations, originalDealloc);
  static_cast<void>(watched);
}

}  // namespace

std::size_t associationOwnerCount() { return owners().size(); }

}  // namespace phone

extern "C" void objc_setAssociatedObject(id object, const void* key, id value, std::uintptr_t policy) {
  using namespace phone;
  if (object == nullptr) return;
  if (value != nullptr) {
    watchDealloc();
    Association association(value, policy);
    auto& place = owners()[object];
    if (const auto found = place.find(key); found != place.end()) {
      // Swapped, so that the old value is released after the new one is in place.
      std::swap(found->second, association);
    } else {
      place.emplace(key, std::move(association));
    }
    return;
  }
  const auto owner = owners().find(object);
  if (owner == owners().end()) return;
  const auto removed = owner->second.extract(key);
  if (owner->second.empty()) owners().erase(owner);
}

extern "C" id objc_getAssociatedObject(id object, const void* key) {
  using namespace phone;
  const auto owner = owners().find(object);
  if (owner == owners().end()) return nullptr;
  const auto found = owner->second.find(key);
  return found == owner->second.end() ? nullptr : found->second.value();
}
