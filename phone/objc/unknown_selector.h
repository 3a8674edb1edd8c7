// A message that nobody answers is a mistake in a plug-in or in the stand-in itself, and ends the process
// naming receiver, class and selector.
#pragma once

#include "platform/objc/runtime.h"

namespace phone {

/// From now on an unknown selector ends the process with one line on standard error, in place of Foundation's
/// exception, which shows no more than its name when it meets C++ code. Doing it again changes nothing.
void endOnUnknownSelectors();

/// The class of that name. Ends the process with a message when there is none: for classes that the stand-in
/// itself needs.
Class requiredClass(const char* name);

}  // namespace phone
