#include "phone/foundation/property_list.h"

#include <cerrno>
#include <new>
#include <stdexcept>
#include <string>

#include "phone/foundation/atomic_file.h"
#include "phone/foundation/property_list_guard.h"
#include "phone/foundation/property_list_tree.h"
#include "platform/foundation/autorelease_pool.h"

namespace phone {

objc::Owned<NSObject> readPropertyList(const std::filesystem::path& file, Containers containers) {
  const std::string bytes = readWholeFile(file);
  try {
    guardStructure(bytes);
    plist_t parsed = nullptr;
    errno = 0;
    const auto parse = isBinaryPropertyList(bytes) ? plist_from_bin : plist_from_xml;
    parse(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &parsed);
    const PropertyListTree tree(parsed);
    // The parser gives none for a damaged file and for missing memory alike.
    if (tree == nullptr && errno == ENOMEM) throw std::bad_alloc();
    if (tree == nullptr) throw std::runtime_error("it is no property list");
    const AutoreleasePool pool;
    return objectOf(tree.get(), containers);
  } catch (const std::runtime_error& error) {
    throw std::runtime_error("cannot read " + file.string() + ": " + error.what());
  }
}

void writePropertyList(NSObject* root, const std::filesystem::path& file) {
  const AutoreleasePool pool;
  char* xml = nullptr;
  std::uint32_t length = 0;
  try {
    plist_to_xml(treeOf(root).get(), &xml, &length);
    if (xml == nullptr) throw std::runtime_error("out of memory");
  } catch (const std::runtime_error& error) {
    throw std::runtime_error("cannot write " + file.string() + ": " + error.what());
  }
  const std::unique_ptr<char, decltype(&plist_to_xml_free)> owned(xml, &plist_to_xml_free);
  writeFileAtomically(file, {xml, length});
}

}  // namespace phone
