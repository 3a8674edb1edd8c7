// The hidden-event store is a dictionary whose keys name hidden events; their values mean nothing.
#pragma once

namespace contract {

/// An event's key is its address up to here, so that all occurrences of an event share one.
inline constexpr char kOccurrenceQuery[] = "?o=";

}  // namespace contract
