// Which calls of the C library fail, as the environment says. Part of a library that is loaded before all
// others into a program under test; it allocates nothing, for memory is among what it makes fail.
#pragma once

namespace faults {

/// The kinds of calls that are counted, each on its own.
enum class Call { kOpen, kRead, kWrite, kSync, kRename, kTruncate, kRemove, kMakeFolder, kAllocate };

/// What becomes of a call.
enum class Outcome {
  kGoesOn,
  /// Fails with the error number that failure() gives.
  kFails,
  /// Reads or writes half of what was asked for.
  kIsCutShort,
  /// The process is killed, half of the content being written.
  kIsLast,
};

/// Reads the environment. Until then every call goes on; nothing is counted.
///
/// FAULT_CALL    the kind: open, read, write, sync, rename, truncate, remove, folder, memory
/// FAULT_AT      the call of that kind that is struck, counted from 1; 0 for none
/// FAULT_STAYS   1: the calls after it, too, as on a disk that is full
/// FAULT_CHANCE  instead: one call in so many, by FAULT_SEED
/// FAULT_ERROR   what befalls it: an error number, "short" or "kill"
/// FAULT_BELOW   the folder (an absolute path) whose files count; with none, all do
/// FAULT_TALLY   a file of two 32-bit counters that is kept up to date: calls of the kind, calls struck
void arm();

/// Counts the call and says what becomes of it.
Outcome outcomeOf(Call call);
/// The same for a call that names a file, or that has it open; calls on other files go on and do not count.
Outcome outcomeOf(Call call, const char* path);
Outcome outcomeOf(Call call, int descriptor);

/// The error number of calls that fail.
int failure();

/// Ends the process as a loss of power does: nothing is flushed, nothing is cleaned up.
[[noreturn]] void die();

}  // namespace faults
