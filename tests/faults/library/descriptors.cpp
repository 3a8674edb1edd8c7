// Calls on open files: read, write, flush, cut.
#include <cerrno>
#include <sys/types.h>
#include <unistd.h>

#include "tests/faults/library/next.h"
#include "tests/faults/library/plan.h"

namespace {

using faults::Call;
using faults::Outcome;
using faults::outcomeOf;

/// Reads or writes, as far as the plan lets it: `transfer(bytes)` does it for so many bytes.
template <typename Transfer>
ssize_t transferred(Call call, int descriptor, std::size_t size, Transfer transfer) {
  const auto half = size / 2 + size % 2;
  switch (outcomeOf(call, descriptor)) {
    case Outcome::kGoesOn:
      return transfer(size);
    case Outcome::kIsCutShort:
      return transfer(half);
    case Outcome::kIsLast:
      if (call == Call::kWrite) transfer(half);
      faults::die();
    case Outcome::kFails:
      break;
  }
  errno = faults::failure();
  return -1;
}

/// A call that gives 0 when it did what it should: `run()` does it.
template <typename Run>
int done(Call call, int descriptor, Run run) {
  const Outcome outcome = outcomeOf(call, descriptor);
  if (outcome == Outcome::kIsLast) faults::die();
  if (outcome != Outcome::kFails) return run();
  errno = faults::failure();
  return -1;
}

}  // namespace

extern "C" ssize_t read(int descriptor, void* bytes, std::size_t size) {
  static const auto real = faults::next<decltype(read)>("read");
  return transferred(Call::kRead, descriptor, size,
                     [&](std::size_t part) { return real(descriptor, bytes, part); });
}

extern "C" ssize_t pread(int descriptor, void* bytes, std::size_t size, off_t offset) {
  static const auto real = faults::next<decltype(pread)>("pread");
  return transferred(Call::kRead, descriptor, size,
                     [&](std::size_t part) { return real(descriptor, bytes, part, offset); });
}

extern "C" ssize_t write(int descriptor, const void* bytes, std::size_t size) {
  static const auto real = faults::next<decltype(write)>("write");
  return transferred(Call::kWrite, descriptor, size,
                     [&](std::size_t part) { return real(descriptor, bytes, part); });
}

extern "C" ssize_t pwrite(int descriptor, const void* bytes, std::size_t size, off_t offset) {
  static const auto real = faults::next<decltype(pwrite)>("pwrite");
  return transferred(Call::kWrite, descriptor, size,
                     [&](std::size_t part) { return real(descriptor, bytes, part, offset); });
}

extern "C" int fsync(int descriptor) {
  static const auto real = faults::next<decltype(fsync)>("fsync");
  return done(Call::kSync, descriptor, [&] { return real(descriptor); });
}

extern "C" int fdatasync(int descriptor) {
  static const auto real = faults::next<decltype(fdatasync)>("fdatasync");
  return done(Call::kSync, descriptor, [&] { return real(descriptor); });
}

extern "C" int ftruncate(int descriptor, off_t size) noexcept {
  static const auto real = faults::next<decltype(ftruncate)>("ftruncate");
  return done(Call::kTruncate, descriptor, [&] { return real(descriptor, size); });
}

// On this system's 64-bit machines a file offset has one size, and each function two names.
extern "C" ssize_t pread64(int, void*, std::size_t, off_t) __attribute__((alias("pread")));
extern "C" ssize_t pwrite64(int, const void*, std::size_t, off_t) __attribute__((alias("pwrite")));
extern "C" int ftruncate64(int, off_t) noexcept __attribute__((alias("ftruncate")));
