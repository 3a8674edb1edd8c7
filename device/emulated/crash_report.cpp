#include "device/emulated/crash_report.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ucontext.h>

#include "device/emulated/arm32/crossing.h"

namespace device {

namespace {

const Image* plugin = nullptr;

/// What a function keeps at its frame pointer.
struct Frame {
  const Frame* caller;
  std::uintptr_t returnAddress;
};

/// The call that a function returns behind; after a call that never returns there may be another function.
std::uintptr_t callBefore(std::uintptr_t returnAddress) {
#if defined(__arm__)
  // The lowest bit says that the instructions there have two bytes.
  constexpr std::uintptr_t kInstruction = 3;
#else
  constexpr std::uintptr_t kInstruction = 4;
#endif
  return returnAddress - kInstruction;
}

#if defined(__arm__)
/// The innermost call out of the plug-in; 0 when there is none. The host's functions keep no chain of calls
/// there.
std::uintptr_t innermostInPlugin(const Frame* /*frame*/) {
  const std::vector<Word>& returns = returnsOfCrossings();
  const auto found =
      std::find_if(returns.rbegin(), returns.rend(), [](Word place) { return plugin->holds(place); });
  return found == returns.rend() ? 0 : callBefore(*found);
}
#else

/// The innermost call in the plug-in on the chain of calls; 0 when there is none.
std::uintptr_t innermostInPlugin(const Frame* frame) {
  constexpr int kMaxFrames = 200;
  for (int depth = 0; depth < kMaxFrames && frame != nullptr; ++depth) {
    if (plugin->holds(frame->returnAddress)) return callBefore(frame->returnAddress);
    // The stack grows down; anything else is no chain of calls any more.
    if (frame->caller <= frame) return 0;
    frame = frame->caller;
  }
  return 0;
}
#endif

void report(const char* fault, std::uintptr_t place) {
  if (place == 0) {
    std::fprintf(stderr, "%s, outside the plug-in\n", fault);
  } else {
    std::fprintf(stderr, "%s, in the plug-in at %s\n", fault, plugin->describe(place).c_str());
  }
}

const char* describe(int signal) {
  switch (signal) {
    case SIGSEGV:
    case SIGBUS:
      return "memory that is not there was used";
    case SIGILL:
      return "something that is no instruction was executed";
    default:
      return "the process was ended";
  }
}

/// Where the plug-in was when the signal came, as far as the registers and the stack tell; 0 when it was not
/// there.
std::uintptr_t placeOf([[maybe_unused]] const void* context) {
#if defined(__aarch64__)
  const mcontext_t& machine = static_cast<const ucontext_t*>(context)->uc_mcontext;
  constexpr int kFramePointer = 29;
  constexpr int kLinkRegister = 30;
  if (plugin->holds(machine.pc)) return machine.pc;
  // After a wild jump, or in a function of the host without a frame yet, the caller is still in the link
  // register.
  const std::uintptr_t caller = callBefore(machine.regs[kLinkRegister]);
  if (plugin->holds(caller)) return caller;
  return innermostInPlugin(reinterpret_cast<const Frame*>(machine.regs[kFramePointer]));
#elif defined(__arm__)
  const mcontext_t& machine = static_cast<const ucontext_t*>(context)->uc_mcontext;
  if (plugin->holds(machine.arm_pc)) return machine.arm_pc;
  const std::uintptr_t caller = callBefore(machine.arm_lr);
  return plugin->holds(caller) ? caller : innermostInPlugin(nullptr);
#else
  return 0;
#endif
}

void handleSignal(int signal, siginfo_t*, void* context) {
  // A fault in the report itself ends the process as it would have without one.
  std::signal(signal, SIG_DFL);
  report(describe(signal), placeOf(context));
  std::raise(signal);
}

}  // namespace

void reportCrashesIn(const Image& image) {
  plugin = &image;
  // A plug-in that runs out of stack leaves none for the report.
  constexpr std::size_t kSize = std::size_t{64} * 1024;
  static std::array<std::byte, kSize> ownStack;
  const stack_t stack{.ss_sp = ownStack.data(), .ss_flags = 0, .ss_size = ownStack.size()};
  sigaltstack(&stack, nullptr);
  struct sigaction action {};
  action.sa_sigaction = handleSignal;
  action.sa_flags = SA_SIGINFO | SA_ONSTACK | SA_NODEFER;
  for (const int signal : {SIGSEGV, SIGBUS, SIGILL, SIGABRT}) sigaction(signal, &action, nullptr);
}

void reportAndEnd(const char* fault) {
  const auto* const frame = static_cast<const Frame*>(__builtin_frame_address(0));
  report(fault, plugin == nullptr ? 0 : innermostInPlugin(frame));
  std::signal(SIGABRT, SIG_DFL);
  std::abort();
}

}  // namespace device
