// A call from one side to the other on 32-bit ARM: from the host into a library for phones, or back. The two
// sides place 64-bit arguments and align the stack differently, and the phone's code keeps no value for its
// caller in r9, which this machine's code expects kept. Every call goes through crossing.S, which keeps all
// registers that either side wants kept and has the arguments laid out anew.
#pragma once

#include <cstdint>
#include <vector>

#include "device/emulated/argument_places.h"

namespace device {

/// What a register or a place on the stack holds.
using Word = std::uintptr_t;

/// Room for a call's arguments, the first four of which go to registers. crossing.S knows the number.
inline constexpr unsigned kMaxWords = 32;

/// A way across. `layOut` gets the caller's arguments, r0 to r3 and then those on the stack, writes the
/// callee's in the same order, kMaxWords of them, and says which function is called.
struct Crossing {
  void* (*layOut)(const Crossing& crossing, const Word* given, Word* taken);
};

/// A function that crosses that way; both live as long as the process.
void* functionFor(const Crossing& crossing);

/// The places of a function's arguments. An encoding that is not understood ends the process.
ArgumentPlaces callPlaces(const char* encoding);

/// Where the calls that are across at this moment return to, the innermost last.
const std::vector<Word>& returnsOfCrossings();

}  // namespace device
