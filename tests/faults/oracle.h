// What must hold of every run, whatever fails in it.
#pragma once

#include "tests/faults/faulty_phone.h"

namespace phone {

/// Nothing is torn: every file is as it was before or as the whole verb makes it, and no file lies there that
/// belongs to neither (unless the process ended at once, or could not remove files).
void expectNothingTorn(const FaultyPhone& phone, const Fault& fault, const FaultyRun& run);

/// Done means done: a run that ends with 0, or prints that it is done, has made every change and shown what
/// there is.
void expectNoLie(const FaultyPhone& phone, const FaultyRun& run);

/// The same for memory, where libraries below go on with what they have: a date in another style, another
/// font. What is printed has every line, and every file but a picture is as it should be.
void expectNoLieBarLooks(const FaultyPhone& phone, const FaultyRun& run);

/// A run that could not do it says why, in words of our own.
void expectReason(const FaultyRun& run);

/// The reason names a file or folder that the verb works on.
void expectFileNamed(const FaultyPhone& phone, const FaultyRun& run);

/// Whether the run changed no file that was there, whatever it left beside them.
bool changedNothing(const FaultyPhone& phone, const FaultyRun& run);

/// The fault makes no difference: the verb did all that it does.
void expectWhole(const FaultyPhone& phone, const FaultyRun& run);

}  // namespace phone
