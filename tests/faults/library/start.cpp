// Where the program starts: what was loaded and set up before its `main` is never struck.
#include "tests/faults/library/next.h"
#include "tests/faults/library/plan.h"

namespace {

using Main = int(int, char**, char**);

Main* programMain = nullptr;

int armedMain(int count, char** arguments, char** environment) {
  faults::arm();
  return programMain(count, arguments, environment);
}

}  // namespace

extern "C" int __libc_start_main(Main* main, int count, char** arguments, void (*begin)(), void (*end)(),
                                 void (*loaderEnd)(), void* stackEnd) {
  programMain = main;
  const auto start = faults::next<decltype(__libc_start_main)>("__libc_start_main");
  return start(armedMain, count, arguments, begin, end, loaderEnd, stackEnd);
}
