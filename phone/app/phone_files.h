// The files on the phone that the verbs read and write, and the two shapes that they have.
#pragma once

#include <string>
#include <string_view>

#include "contract/files.h"
#include "platform/foundation/ns_mutable_array.h"
#include "platform/foundation/ns_mutable_dictionary.h"
#include "platform/foundation/ns_string.h"
#include "platform/objc/owned.h"

namespace phone {

/// The file's dictionary or array, to be changed and written back; empty when there is no such file. Throws
/// std::runtime_error when the file holds anything else: writing would lose it.
objc::Owned<NSMutableDictionary> readDictionary(std::string_view phoneFile);
objc::Owned<NSMutableArray> readArray(std::string_view phoneFile);

/// Replaces the file at once. Throws std::runtime_error with file and reason, the old file being whole.
void writeFile(std::string_view phoneFile, NSObject* content);

/// Removes the file; none is fine. Throws std::runtime_error with file and reason.
void removeFile(std::string_view phoneFile);

/// The text in UTF-8; empty for none.
std::string utf8(NSString* text);
/// The text as an object (borrowed). Throws UsageError when it is no UTF-8.
NSString* textObject(const std::string& text);

}  // namespace phone
