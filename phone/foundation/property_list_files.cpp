#include "phone/foundation/property_list_files.h"

#include "phone/foundation/phone_root.h"
#include "phone/foundation/property_list.h"
#include "phone/objc/hooking.h"
#include "phone/objc/unknown_selector.h"
#include "platform/foundation/ns_array.h"
#include "platform/foundation/ns_dictionary.h"
#include "platform/foundation/ns_string.h"

namespace phone {

namespace {

std::filesystem::path fileNamed(NSString* path) {
  const char* const utf8 = path->UTF8String();
  if (utf8 == nullptr) throw std::runtime_error("a file name is none");
  return pathOnThisMachine(utf8);
}

/// The initialiser of a class cluster: what `self` becomes is up to its own `Copy` initialiser, so that a
/// mutable class gives a mutable object. No error leaves it: the platform's answer to every unreadable file
/// is none.
template <objc::FixedString Root, objc::FixedString MutableRoot, objc::FixedString Copy>
NSObject* initWithContentsOfFile(NSObject* self, SEL, NSString* path) {
  auto receiver = objc::Owned<NSObject>::adopt(self);
  try {
    const bool changeable = self->isKindOfClass(objc::classNamed<MutableRoot>());
    const auto root =
        readPropertyList(fileNamed(path), changeable ? Containers::kMutable : Containers::kImmutable);
    if (!root->isKindOfClass(objc::classNamed<Root>())) return nullptr;
    return objc::send<Copy, NSObject*>(receiver.relinquish(), root.get());
  } catch (...) {
    return nullptr;
  }
}

/// Every write replaces the whole file at once, so `atomically` makes no difference.
bool writeToFile(NSObject* self, SEL, NSString* path, bool /*atomically*/) {
  try {
    writePropertyList(self, fileNamed(path));
    return true;
  } catch (...) {
    return false;
  }
}

void replace(const char* className, const char* selector, IMP replacement) {
  hookMethod(requiredClass(className), sel_registerName(selector), replacement, nullptr);
}

}  // namespace

void installPropertyListFiles() {
  static const bool done = [] {
    constexpr auto readDictionary =
        initWithContentsOfFile<"NSDictionary", "NSMutableDictionary", "initWithDictionary:">;
    constexpr auto readArray = initWithContentsOfFile<"NSArray", "NSMutableArray", "initWithArray:">;
    replace("NSDictionary", "initWithContentsOfFile:", reinterpret_cast<IMP>(readDictionary));
    replace("NSArray", "initWithContentsOfFile:", reinterpret_cast<IMP>(readArray));
    for (const char* const root : {"NSDictionary", "NSArray"}) {
      replace(root, "writeToFile:atomically:", reinterpret_cast<IMP>(writeToFile));
    }
    return true;
  }();
  static_cast<void>(done);
}

}  // namespace phone
