// Refuses files whose structure alone would bring libplist down: it follows nesting by recursion, and copies
// an object of a binary list once for each place that refers to it.
#pragma once

#include <string_view>

namespace phone {

/// Deeper lists are refused: they come from mistakes or ill will, and every level costs stack.
inline constexpr int kMaximumDepth = 1000;

/// Whether the bytes claim to be a binary property list; all others are XML, if any.
inline bool isBinaryPropertyList(std::string_view bytes) { return bytes.starts_with("bplist"); }

/// Throws std::runtime_error with the reason when the bytes are nested deeper than kMaximumDepth, hold
/// themselves, or unfold into more than fits in memory. Whether they are a property list at all is left to
/// libplist.
void guardStructure(std::string_view bytes);

}  // namespace phone
