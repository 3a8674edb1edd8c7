// Where a call's arguments lie on a 32-bit phone and where on 32-bit ARM under Linux: in the same registers
// and on the stack behind them, but Linux starts a number of 64 bits at an even word only.
#pragma once

#include <vector>

namespace device {

/// Words count from 0: the registers r0 to r3, then the stack.
struct ArgumentPlaces {
  /// Whether the result is a struct that the callee writes to memory; the first word says where.
  bool isResultInMemory = false;
  /// For each word of the arguments on the phone, from the first on, its number under Linux.
  std::vector<unsigned> here;
};

/// The places for a function with that type encoding: its result, then its arguments. Throws
/// std::runtime_error for types that no method of a plug-in has.
ArgumentPlaces argumentPlaces(const char* encoding);

/// For each variable argument that a format asks for, how many words it takes: 1 or 2.
std::vector<unsigned> formatArgumentWords(const char* format);

}  // namespace device
