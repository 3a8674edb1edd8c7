#include "phone/foundation/atomic_file.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <stdio.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace phone {

namespace {

// A temporary file is named after its target. Its writer holds a lock on it for as long as it lives, so a
// file that can be locked was left behind by a writer that was killed.
constexpr std::string_view kTemporaryMark = ".writing-";
constexpr std::string_view kTemporaryEnd = "XXXXXX";

[[noreturn]] void fail(const char* what, const std::filesystem::path& file, int reason) {
  throw FileError(std::string("cannot ") + what + " " + file.string() + ": " + std::strerror(reason), reason);
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

/// Runs a call of the system until no signal cuts it off.
template <typename Call>
auto uninterrupted(Call call) {
  for (;;) {
    const auto result = call();
    if (result >= 0 || errno != EINTR) return result;
  }
}

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
  constexpr int kMaxLinks = 40;
  std::error_code error;
  std::filesystem::path target = std::filesystem::absolute(file, error);
  if (error) fail("write", file, error.value());
  for (int links = 0; std::filesystem::is_symlink(target, error); ++links) {
    if (links == kMaxLinks) fail("write", file, ELOOP);
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
  throw FileError("cannot write " + target.string() + ": it is no plain file", EINVAL);
}

struct TemporaryFile {
  std::filesystem::path path;
  FileDescriptor descriptor;
};

/// How the names of the target's temporary files begin. Cut where a long name and the mark would not fit
/// together; who shares a beginning then is told apart by the locks.
std::string temporaryPrefix(const std::filesystem::path& target) {
  constexpr std::size_t kMaxNameLength = 200;
  return target.filename().string().substr(0, kMaxNameLength).append(kTemporaryMark);
}

TemporaryFile makeTemporaryFile(const std::filesystem::path& target) {
  const std::filesystem::path pattern = target.parent_path() / temporaryPrefix(target).append(kTemporaryEnd);
  for (;;) {
    std::string name;
    FileDescriptor made(uninterrupted([&] {
      name = pattern.string();
      return mkostemp(name.data(), O_CLOEXEC);
    }));
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

/// Makes the folder's entries outlast a machine that stops. Some file systems cannot, and say so.
bool flushFolder(const std::filesystem::path& folder) {
  const FileDescriptor opened(
      uninterrupted([&folder] { return open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
  return opened && (fsync(opened.number()) == 0 || errno == EINVAL);
}

/// Writes a temporary file and lets `place` give it the target's name. Gives 0, or the reason for which that
/// was not done; nothing is left behind then. Throws FileError when it was done and may not last.
template <typename Place>
int putInPlace(const std::filesystem::path& target, std::string_view content, Place place) {
  removeLeftBehindFiles(target);
  const TemporaryFile temporary = makeTemporaryFile(target);
  const SizeSignalIgnored ignored;
  // Flushed before it gets its name: otherwise a machine that stops may keep the name and not the content.
  if (fchmod(temporary.descriptor.number(), permissionsFor(target)) == 0 &&
      writeAll(temporary.descriptor, content) && fdatasync(temporary.descriptor.number()) == 0 &&
      place(temporary.path.c_str(), target.c_str())) {
    if (!flushFolder(target.parent_path())) fail("be sure to have written", target, errno);
    return 0;
  }
  const int reason = errno;
  unlink(temporary.path.c_str());
  return reason;
}

}  // namespace

std::string readWholeFile(const std::filesystem::path& file, std::uintmax_t largest) {
  // Not to be held up by a pipe of that name.
  const FileDescriptor opened(
      uninterrupted([&file] { return open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); }));
  struct stat status {};
  if (!opened || fstat(opened.number(), &status) != 0) fail("read", file, errno);
  if (S_ISDIR(status.st_mode)) fail("read", file, EISDIR);
  if (!S_ISREG(status.st_mode))
    throw FileError("cannot read " + file.string() + ": it is no plain file", EINVAL);
  if (static_cast<std::uintmax_t>(status.st_size) > largest) fail("read", file, EFBIG);
  std::string content(static_cast<std::size_t>(status.st_size), '\0');
  std::size_t length = 0;
  while (length < content.size()) {
    const ssize_t got = uninterrupted(
        [&] { return read(opened.number(), content.data() + length, content.size() - length); });
    if (got < 0) fail("read", file, errno);
    if (got == 0) break;
    length += static_cast<std::size_t>(got);
  }
  content.resize(length);
  return content;
}

bool writeAll(const FileDescriptor& opened, std::string_view content) {
  while (!content.empty()) {
    const ssize_t written =
        uninterrupted([&] { return write(opened.number(), content.data(), content.size()); });
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
