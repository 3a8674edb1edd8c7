// The way from the host into a function of a library for phones. The phone's compilers extend a small
// argument, such as a boolean, to 32 bits before the call and rely on it; this machine's leave there what was
// in the register.
#pragma once

#include "platform/objc/runtime.h"

namespace device {

/// An implementation for the host to call: brings every small argument of a method with that type encoding
/// into the phone's form and goes on to `implementation`. The upper halves of their registers, which mean
/// nothing on a phone, get rubbish. Owned by the process; the implementation itself where there is nothing to
/// do.
IMP enteredAsOnPhones(IMP implementation, const char* encoding);

}  // namespace device
