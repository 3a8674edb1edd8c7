// Writing through C's streams, whose own calls of the system never leave the C library.
#include <cerrno>
#include <cstdio>
#include <stdio_ext.h>

#include "tests/faults/library/next.h"
#include "tests/faults/library/plan.h"

namespace {

using faults::Call;
using faults::Outcome;

/// What ferror() asks for; the C library has no call that sets it.
constexpr int kErrorSeen = 0x20;

Outcome outcomeOfWriting(std::FILE* stream) {
  return __fwritable(stream) != 0 ? faults::outcomeOf(Call::kWrite, fileno(stream)) : Outcome::kGoesOn;
}

void fail(std::FILE* stream) {
  stream->_flags |= kErrorSeen;
  errno = faults::failure();
}

}  // namespace

extern "C" std::size_t fwrite(const void* bytes, std::size_t size, std::size_t count, std::FILE* stream) {
  static const auto real = faults::next<decltype(fwrite)>("fwrite");
  const Outcome outcome = outcomeOfWriting(stream);
  if (outcome == Outcome::kIsLast) faults::die();
  if (outcome != Outcome::kFails) return real(bytes, size, count, stream);
  fail(stream);
  return 0;
}

/// What a stream still holds is written when it is closed.
extern "C" int fclose(std::FILE* stream) {
  static const auto real = faults::next<decltype(fclose)>("fclose");
  const Outcome outcome = outcomeOfWriting(stream);
  if (outcome == Outcome::kIsLast) faults::die();
  const int result = real(stream);
  if (outcome != Outcome::kFails) return result;
  errno = faults::failure();
  return EOF;
}
