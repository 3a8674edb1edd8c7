// The ways between the host and a library for phones, where the phone's calling convention and this machine's
// part. What has to be done depends on the processor: arm64/ and arm32/ each have an implementation.
#pragma once

#include <string>

#include "platform/objc/runtime.h"

namespace device {

/// A function of the library for the host to call: brings the arguments of a function with that type encoding
/// into the phone's form and goes on to `implementation`. Owned by the process; the function itself where
/// there is nothing to do.
IMP enteredAsOnPhones(IMP implementation, const char* encoding);

/// A function of the host for the library to call, the same the other way round.
IMP calledAsOnPhones(IMP implementation, const char* encoding);

/// What the library gets for a name of the host's: data as it is, a function so that the library can call it.
void* nameAsOnPhones(void* address);

/// Address of the phone's entry for messages or for a call with variable arguments, or nil for other names.
void* messageEntry(const std::string& name);

}  // namespace device
