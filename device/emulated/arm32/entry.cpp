// 32-bit ARM: functions whose types are known cross with every argument in its place, others with as many
// words as any of them takes.
#include "device/emulated/entry.h"

#include <algorithm>
#include <dlfcn.h>
#include <link.h>

#include "device/emulated/arm32/crossing.h"

namespace device {

namespace {

struct TypedCrossing : Crossing {
  TypedCrossing(decltype(layOut) how, IMP function, const char* encoding)
      : Crossing{how}, callee(reinterpret_cast<void*>(function)), places(callPlaces(encoding)) {}

  void* callee;
  ArgumentPlaces places;
};

void* enter(const Crossing& crossing, const Word* given, Word* taken) {
  const auto& typed = static_cast<const TypedCrossing&>(crossing);
  for (const unsigned here : typed.places.here) *taken++ = given[here];
  return typed.callee;
}

void* leave(const Crossing& crossing, const Word* given, Word* taken) {
  const auto& typed = static_cast<const TypedCrossing&>(crossing);
  for (const unsigned here : typed.places.here) taken[here] = *given++;
  return typed.callee;
}

/// To one of the system's functions, none of which takes a 64-bit number or more than eight words.
struct PlainCrossing : Crossing {
  explicit PlainCrossing(void* function) : Crossing{copy}, callee(function) {}

  static void* copy(const Crossing& crossing, const Word* given, Word* taken) {
    constexpr unsigned kWords = 8;
    std::copy_n(given, kWords, taken);
    return static_cast<const PlainCrossing&>(crossing).callee;
  }

  void* callee;
};

bool isFunction(void* address) {
  Dl_info library{};
  const ElfW(Sym)* symbol = nullptr;
  return dladdr1(address, &library, reinterpret_cast<void**>(const_cast<ElfW(Sym)**>(&symbol)),
                 RTLD_DL_SYMENT) != 0 &&
         symbol != nullptr && ELF32_ST_TYPE(symbol->st_info) == STT_FUNC;
}

}  // namespace

IMP enteredAsOnPhones(IMP implementation, const char* encoding) {
  if (implementation == nullptr) return nullptr;
  return reinterpret_cast<IMP>(functionFor(*new TypedCrossing(enter, implementation, encoding)));
}

IMP calledAsOnPhones(IMP implementation, const char* encoding) {
  return reinterpret_cast<IMP>(functionFor(*new TypedCrossing(leave, implementation, encoding)));
}

void* nameAsOnPhones(void* address) {
  return isFunction(address) ? functionFor(*new PlainCrossing(address)) : address;
}

}  // namespace device
