#include "phone/foundation/atomic_file.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <stdexcept>
#include <stdio.h>
#include <sys/file.h>
#include <sys/stat.h>

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

/// The permissions that the new file gets: those of the old one, else what the user lets new files have.
mode_t permissionsFor(const std::filesystem::path& target) {
  struct stat old {};
  if (stat(target.c_str(), &old) == 0) return old.st_mode & 07777;
  const mode_t withheld = umask(0);
  umask(withheld);
  return 0666 & ~withheld;
}

/// Where the name leads: links are followed, so that they stay, also those to a file that is not there yet.
std::filesystem::path targetOf(const std::filesystem::path& file) {
  constexpr int kMostLinks = 40;
  std::error_code error;
  std::filesystem::path target = std::filesystem::absolute(file, error);
  if (error) fail("write", file, error.value());
  for (int links = 0; std::filesystem::is_symlink(target, error); ++links) {
    if (links == kMostLinks) fail("write", file, ELOOP);
    const std::filesystem::path next = std::filesystem::read_symlink(target, error);
    if (error) fail("write", file, error.value());
    target = target.parent_path() / next;
  }
  return target;
}

/// A device, a pipe or a folder of that name is somebody's, and no old content.
void requirePlainFileOrNone(const std::filesystem::path& target) {
  struct stat status {};
  if (lstat(target.c_str(), &status) != 0 || S_ISREG(status.st_mode)) return;
  if (S_ISDIR(status.st_mode)) fail("write", target, EISDIR);
  throw std::runtime_error("cannot write " + target.string() + ": it is no plain file");
}

struct TemporaryFile {
  std::filesystem::path path;
  FileDescriptor descriptor;
};

/// How the names of the target's temporary files begin. Cut where a long name and the mark would not fit
/// together; who shares a beginning then is told apart by the locks.
std::string temporaryPrefix(const std::filesystem::path& target) {
  constexpr std::size_t kMostOfName = 200;
  return target.filename().string().substr(0, kMostOfName).append(kTemporaryMark);
}

TemporaryFile makeTemporaryFile(const std::filesystem::path& target) {
  const std::filesystem::path pattern = target.parent_path() / temporaryPrefix(target).append(kTemporaryEnd);
  for (;;) {
    std::string name = pattern.string();
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
  const std::string prefix = temporaryPrefix(target);
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

/// Not every file system can rename without replacing; those that cannot have links.
bool renameWithoutReplacing(const char* from, const char* to) {
  if (renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0) return true;
  if (errno != EINVAL) return false;
  return link(from, to) == 0 && unlink(from) == 0;
}

/// Writes a temporary file and lets `place` give it the target's name. Gives 0, or the reason for which that
/// was not done; nothing is left behind then.
template <typename Place>
int putInPlace(const std::filesystem::path& target, std::string_view content, Place place) {
  removeLeftBehindFiles(target);
  const TemporaryFile temporary = makeTemporaryFile(target);
  const SizeSignalIgnored ignored;
  // Flushed before it gets its name: otherwise a machine that stops may keep the name and not the content.
  if (fchmod(temporary.descriptor.number(), permissionsFor(target)) == 0 &&
      writeAll(temporary.descriptor, content) && fdatasync(temporary.descriptor.number()) == 0 &&
      place(temporary.path.c_str(), target.c_str())) {
    return 0;
  }
  const int reason = errno;
  unlink(temporary.path.c_str());
  return reason;
}

}  // namespace

std::string readWholeFile(const std::filesystem::path& file) {
  // Not to be held up by a pipe of that name.
  const FileDescriptor opened(open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  struct stat status {};
  if (!opened || fstat(opened.number(), &status) != 0) fail("read", file, errno);
  if (S_ISDIR(status.st_mode)) fail("read", file, EISDIR);
  if (!S_ISREG(status.st_mode))
    throw std::runtime_error("cannot read " + file.string() + ": it is no plain file");
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

bool writeAll(const FileDescriptor& opened, std::string_view content) {
  while (!content.empty()) {
    const ssize_t written = write(opened.number(), content.data(), content.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    content.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

void writeFileAtomically(const std::filesystem::path& file, std::string_view content) {
  const std::filesystem::path target = targetOf(file);
  requirePlainFileOrNone(target);
  const auto replace = [](const char* from, const char* to) { return rename(from, to) == 0; };
  if (const int reason = putInPlace(target, content, replace); reason != 0) fail("write", file, reason);
}

bool createFileAtomically(const std::filesystem::path& file, std::string_view content) {
  const int reason = putInPlace(targetOf(file), content, renameWithoutReplacing);
  if (reason != 0 && reason != EEXIST) fail("write", file, reason);
  return reason == 0;
}

}  // namespace phone
