#include "phone/foundation/output_file.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <stdexcept>
#include <string>
#include <sys/stat.h>

#include "phone/foundation/atomic_file.h"

namespace phone {

namespace {

/// True for what can be replaced: a plain file that stands under a name, or no file at all. An open file that
/// is reached through /proc may have no name any more.
bool hasReplaceableContent(const std::filesystem::path& file) {
  struct stat status {};
  if (stat(file.c_str(), &status) != 0) return true;
  return S_ISREG(status.st_mode) && status.st_nlink > 0;
}

}  // namespace

void writeOpenFile(const FileDescriptor& opened, const std::filesystem::path& name,
                   std::string_view content) {
  if (writeAll(opened, content) || errno == EPIPE) return;
  throw std::runtime_error("cannot write " + name.string() + ": " + std::strerror(errno));
}

void writeOutputFile(const std::filesystem::path& file, std::string_view content) {
  if (hasReplaceableContent(file)) {
    writeFileAtomically(file, content);
    return;
  }
  const FileDescriptor opened(open(file.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY));
  if (!opened) throw std::runtime_error("cannot write " + file.string() + ": " + std::strerror(errno));
  writeOpenFile(opened, file, content);
}

}  // namespace phone
