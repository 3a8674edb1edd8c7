// Whole files: read at once, replaced at once.
#pragma once

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

#include "phone/foundation/file_descriptor.h"

namespace phone {

/// What went wrong with a file, in words that name it.
class FileError : public std::runtime_error {
 public:
  FileError(const std::string& problem, int reason) : std::runtime_error(problem), reason_(reason) {}
  /// The system's error number.
  int reason() const { return reason_; }

 private:
  int reason_;
};

/// Beyond any file of a phone's settings, in bytes: a sparse file can claim more than there is memory.
inline constexpr std::uintmax_t kLargestFile = 256UL << 20;

/// The file's content. Throws FileError; a directory, a device or a file of more bytes than the largest is
/// refused.
std::string readWholeFile(const std::filesystem::path& file, std::uintmax_t largest = kLargestFile);

/// Puts the content in place of the file in one step: a reader, and whoever comes after a crash, finds the
/// old content or the new. Links are followed. Throws std::runtime_error with file and reason, the old file
/// being whole; what is no plain file is never replaced. Temporary files that killed writers left beside the
/// target are removed; those of running writers are not.
void writeFileAtomically(const std::filesystem::path& file, std::string_view content);

/// Makes a file that is there with its whole content or not at all. False when there was one of that name,
/// which is left as it is. Throws std::runtime_error with file and reason.
bool createFileAtomically(const std::filesystem::path& file, std::string_view content);

/// Writes all of it to an open file. False when it could not, which `errno` then explains.
bool writeAll(const FileDescriptor& opened, std::string_view content);

}  // namespace phone
