#include "phone/foundation/atomic_file.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <stdexcept>
#include <sys/file.h>
#include <sys/stat.h>

#include "phone/foundation/file_descriptor.h"

namespace phone {

namespace {

// A temporary file is named after its target. Its writer holds a lock on it for as long as it lives, so a
// file that can be locked was left behind by a writer that was killed.
constexpr std::string_view kTemporaryMark = ".writing-";
constexpr std::string_view kTemporaryEnd = "XXXXXX";

/// Beyond any file of a phone's settings: a sparse file can claim more than there is memory.
constexpr off_t kLargestFile = 256 << 20;

[[noreturn]] void fail(const char* what, const std::filesystem::path& file, int reason) {
  throw std::runtime_error(std::string("cannot ") + what + " " + file.string() + ": " +
                           std::strerror(reason));
}

/// A write beyond the process's file size limit is an error like any other, not the end of the process.
class SizeSignalIgnored {
 public:
  SizeSignalIgnored() {
    struct sigaction ignore {};
    ignore.sa_handler = SIG_IGN;
    sigaction(SIGXFSZ, &ignore, &before_);
  }
  ~SizeSignalIgnored() { sigaction(SIGXFSZ, &before_, nullptr); }
  SizeSignalIgnored(const SizeSignalIgnored&) = delete;
  SizeSignalIgnored& operator=(const SizeSignalIgnored&) = delete;

 private:
  struct sigaction before_ {};
};

bool writeAll(int descriptor, std::string_view content) {
  while (!content.empty()) {
    const ssize_t written = write(descriptor, content.data(), content.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    content.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

/// The permissions that the new file gets: those of the old one.
mode_t permissionsFor(const std::filesystem::path& target) {
  struct stat old {};
  return stat(target.c_str(), &old) == 0 ? old.st_mode & 07777 : 0644;
}

struct TemporaryFile {
  std::filesystem::path path;
  FileDescriptor descriptor;
};

TemporaryFile makeTemporaryFile(const std::filesystem::path& target) {
  for (;;) {
    std::string name = target.string();
    name.append(kTemporaryMark).append(kTemporaryEnd);
    FileDescriptor made(mkostemp(name.data(), O_CLOEXEC));
    if (!made) fail("write", target, errno);
    flock(made.number(), LOCK_EX);
    // Another writer may have taken the file for a left-over one before it was locked.
    struct stat status {};
    if (fstat(made.number(), &status) == 0 && status.st_nlink > 0) return {name, std::move(made)};
  }
}

void removeIfLeftBehind(const std::filesystem::path& temporary) {
  const FileDescriptor found(open(temporary.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  if (found && flock(found.number(), LOCK_EX | LOCK_NB) == 0) unlink(temporary.c_str());
}

void removeLeftBehindFiles(const std::filesystem::path& target) {
  const std::string prefix = target.filename().string().append(kTemporaryMark);
  DIR* const folder = opendir(target.parent_path().c_str());
  if (folder == nullptr) return;
  while (const dirent* const entry = readdir(folder)) {
    const std::string_view name = entry->d_name;
    if (name.size() == prefix.size() + kTemporaryEnd.size() && name.starts_with(prefix)) {
      removeIfLeftBehind(target.parent_path() / name);
    }
  }
  closedir(folder);
}

}  // namespace

std::string readWholeFile(const std::filesystem::path& file) {
  // Not to be held up by a pipe of that name.
  const FileDescriptor opened(open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  struct stat status {};
  if (!opened || fstat(opened.number(), &status) != 0) fail("read", file, errno);
  if (S_ISDIR(status.st_mode)) fail("read", file, EISDIR);
  if (!S_ISREG(status.st_mode)) throw std::runtime_error("cannot read " + file.string() + ": it is no file");
  if (status.st_size > kLargestFile) fail("read", file, EFBIG);
  std::string content(static_cast<std::size_t>(status.st_size), '\0');
  std::size_t length = 0;
  while (length < content.size()) {
    const ssize_t got = read(opened.number(), content.data() + length, content.size() - length);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) fail("read", file, errno);
    if (got == 0) break;
    length += static_cast<std::size_t>(got);
  }
  content.resize(length);
  return content;
}

void writeFileAtomically(const std::filesystem::path& file, std::string_view content) {
  std::error_code noLink;
  const auto linked =
      std::filesystem::is_symlink(file, noLink) ? std::filesystem::canonical(file, noLink) : file;
  const auto target = std::filesystem::absolute(noLink ? file : linked);
  removeLeftBehindFiles(target);
  const TemporaryFile temporary = makeTemporaryFile(target);
  const int descriptor = temporary.descriptor.number();
  const SizeSignalIgnored ignored;
  // Flushed before it is renamed: otherwise a machine that stops may keep the new name and not the new
  // content.
  if (fchmod(descriptor, permissionsFor(target)) != 0 || !writeAll(descriptor, content) ||
      fdatasync(descriptor) != 0 || rename(temporary.path.c_str(), target.c_str()) != 0) {
    const int reason = errno;
    unlink(temporary.path.c_str());
    fail("write", file, reason);
  }
}

}  // namespace phone
