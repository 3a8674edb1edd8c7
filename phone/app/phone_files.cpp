#include "phone/app/phone_files.h"

#include <filesystem>

#include "phone/app/usage_error.h"
#include "phone/foundation/phone_root.h"
#include "phone/foundation/property_list.h"

namespace phone {

namespace {

template <typename Container>
objc::Owned<Container> readContainer(std::string_view phoneFile, const char* kind) {
  const std::filesystem::path file = pathOnThisMachine(phoneFile);
  if (!std::filesystem::exists(file)) return objc::make<Container>();
  objc::Owned<NSObject> content = readPropertyList(file, Containers::kMutable);
  if (!content->isKindOfClass(objc::classOf<Container>())) {
    throw std::runtime_error(file.string() + ": its content is no " + kind +
                             "; it was left as it is, remove the file to start afresh");
  }
  return objc::Owned<Container>::adopt(static_cast<Container*>(content.relinquish()));
}

}  // namespace

objc::Owned<NSMutableDictionary> readDictionary(std::string_view phoneFile) {
  return readContainer<NSMutableDictionary>(phoneFile, "dictionary");
}

objc::Owned<NSMutableArray> readArray(std::string_view phoneFile) {
  return readContainer<NSMutableArray>(phoneFile, "list");
}

void writeFile(std::string_view phoneFile, NSObject* content) {
  writePropertyList(content, pathOnThisMachine(phoneFile));
}

void removeFile(std::string_view phoneFile) {
  const std::filesystem::path file = pathOnThisMachine(phoneFile);
  std::error_code error;
  using Type = std::filesystem::file_type;
  const Type type = std::filesystem::symlink_status(file, error).type();
  if (type == Type::not_found) return;
  if (type != Type::none && type != Type::regular && type != Type::symlink) {
    throw std::runtime_error(file.string() + ": cannot be removed: it is no plain file");
  }
  std::filesystem::remove(file, error);
  if (error) throw std::runtime_error(file.string() + ": cannot be removed: " + error.message());
}

std::string utf8(NSString* text) {
  const char* const bytes = text->UTF8String();
  return bytes == nullptr ? "" : bytes;
}

NSString* textObject(const std::string& text) {
  NSString* const object = NSString::stringWithUTF8String(text.c_str());
  if (object == nullptr) throw UsageError("\"" + text + "\" is no UTF-8 text");
  return object;
}

}  // namespace phone
