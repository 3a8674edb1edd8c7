// Property lists: files and objects, on libplist. GNUstep's own reader refuses binary files, and its writer
// writes an empty XML file as soon as a text is not ASCII.
#pragma once

#include <filesystem>

#include "platform/foundation/ns_object.h"
#include "platform/objc/owned.h"

namespace phone {

/// Whether the dictionaries and arrays that are read can be changed.
enum class Containers { kImmutable, kMutable };

/// The root object of an XML or binary property list. Throws std::runtime_error with file and reason when the
/// file is missing, cannot be read, or is no property list.
objc::Owned<NSObject> readPropertyList(const std::filesystem::path& file,
                                       Containers containers = Containers::kImmutable);

/// Writes the object as an XML property list: the file has the old content or the new, never anything else.
/// Throws std::runtime_error with file and reason, the old file being whole, when the object holds something
/// that a property list cannot (a key that is no text, an object of another kind, a container inside itself)
/// or the file cannot be written.
void writePropertyList(NSObject* root, const std::filesystem::path& file);

}  // namespace phone
