// Calls that name a file: open, rename, remove, make a folder.
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/faults/library/next.h"
#include "tests/faults/library/plan.h"

namespace {

using faults::Call;
using faults::Outcome;

/// Runs the call unless the plan says otherwise; `failed` is what it then gives.
template <typename Result, typename Run>
Result done(Call call, const char* path, Result failed, Run run) {
  const Outcome outcome = faults::outcomeOf(call, path);
  if (outcome == Outcome::kIsLast) faults::die();
  if (outcome != Outcome::kFails) return run();
  errno = faults::failure();
  return failed;
}

/// The permissions that follow the flags of a call that makes a file.
#define MODE_BEHIND(flags)                                          \
  mode_t mode = 0;                                                  \
  if (((flags)&O_CREAT) != 0 || ((flags)&O_TMPFILE) == O_TMPFILE) { \
    va_list rest;                                                   \
    va_start(rest, flags);                                          \
    mode = va_arg(rest, mode_t);                                    \
    va_end(rest);                                                   \
  }

}  // namespace

extern "C" int open(const char* path, int flags, ...) {
  static const auto real = faults::next<decltype(open)>("open");
  MODE_BEHIND(flags)
  return done(Call::kOpen, path, -1, [&] { return real(path, flags, mode); });
}

extern "C" int openat(int folder, const char* path, int flags, ...) {
  static const auto real = faults::next<decltype(openat)>("openat");
  MODE_BEHIND(flags)
  return done(Call::kOpen, path, -1, [&] { return real(folder, path, flags, mode); });
}

extern "C" int mkostemp(char* path, int flags) {
  static const auto real = faults::next<decltype(mkostemp)>("mkostemp");
  return done(Call::kOpen, path, -1, [&] { return real(path, flags); });
}

extern "C" FILE* fopen(const char* path, const char* mode) {
  static const auto real = faults::next<decltype(fopen)>("fopen");
  return done<FILE*>(Call::kOpen, path, nullptr, [&] { return real(path, mode); });
}

extern "C" int rename(const char* from, const char* to) noexcept {
  static const auto real = faults::next<decltype(rename)>("rename");
  return done(Call::kRename, to, -1, [&] { return real(from, to); });
}

extern "C" int unlink(const char* path) noexcept {
  static const auto real = faults::next<decltype(unlink)>("unlink");
  return done(Call::kRemove, path, -1, [&] { return real(path); });
}

extern "C" int remove(const char* path) noexcept {
  static const auto real = faults::next<decltype(remove)>("remove");
  return done(Call::kRemove, path, -1, [&] { return real(path); });
}

extern "C" int mkdir(const char* path, mode_t mode) noexcept {
  static const auto real = faults::next<decltype(mkdir)>("mkdir");
  return done(Call::kMakeFolder, path, -1, [&] { return real(path, mode); });
}

extern "C" int open64(const char*, int, ...) __attribute__((alias("open")));
extern "C" int openat64(int, const char*, int, ...) __attribute__((alias("openat")));
extern "C" int mkostemp64(char*, int) __attribute__((alias("mkostemp")));
extern "C" FILE* fopen64(const char*, const char*) __attribute__((alias("fopen")));
