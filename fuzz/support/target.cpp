#include "fuzz/support/target.h"

#include <cstdlib>
#include <iostream>

#include "phone/foundation/log_sink.h"
#include "platform/foundation/autorelease_pool.h"

namespace phone::fuzz {

void require(bool holds, const std::string& otherwise) {
  if (holds) return;
  std::cerr << "does not hold: " << otherwise << std::endl;
  std::abort();
}

void tryInput(Target& target, std::string_view bytes) {
  {
    const AutoreleasePool pool;
    target.tryInput(bytes);
  }
  clearLog();
}

}  // namespace phone::fuzz
