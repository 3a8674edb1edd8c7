#include "phone/foundation/property_list_files.h"

#include <new>
#include <set>

#include "phone/foundation/atomic_file.h"
#include "phone/foundation/file_problems.h"
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

/// Files that were there and could not be read when this process last tried.
std::set<std::filesystem::path>& unreadFiles() {
  static std::set<std::filesystem::path> files;
  return files;
}

objc::Owned<NSObject> readAndRemember(const std::filesystem::path& file, Containers containers) {
  unreadFiles().insert(file);
  try {
    auto root = readPropertyList(file, containers);
    unreadFiles().erase(file);
    return root;
  } catch (const FileError& error) {
    if (isSystemFailure(error.reason())) {
      reportFileProblem(error.what());
    } else {
      unreadFiles().erase(file);
    }
    throw;
  } catch (const std::bad_alloc&) {
    reportFileProblem("cannot read " + file.string() + ": there is not enough memory");
    throw;
  } catch (const std::runtime_error&) {
    // It was read, and is no property list.
    unreadFiles().erase(file);
    throw;
  }
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
        readAndRemember(fileNamed(path), changeable ? Containers::kMutable : Containers::kImmutable);
    if (!root->isKindOfClass(objc::classNamed<Root>())) return nullptr;
    return objc::send<Copy, NSObject*>(receiver.relinquish(), root.get());
  } catch (...) {
    return nullptr;
  }
}

/// Every write replaces the whole file at once, so `atomically` makes no difference. Who was told "none"
/// because a file could not be read would lose with its next write all that the file holds: such a write is
/// refused.
bool writeToFile(NSObject* self, SEL, NSString* path, bool /*atomically*/) {
  try {
    const std::filesystem::path file = fileNamed(path);
    if (unreadFiles().contains(file)) return false;
    writePropertyList(self, file);
    return true;
  } catch (const FileError& error) {
    reportFileProblem(error.what());
    return false;
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
