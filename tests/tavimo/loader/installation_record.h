// What the plug-in installs while it loads. This program's own MSHookMessageEx, class_addMethod and
// objc_registerClassPair stand before those of the phone and the runtime, record the call and pass it on.
#pragma once

#include <string>
#include <vector>

namespace phone {

/// Loads the plug-in and gives a line per step: "replace CLASS SELECTOR", "add CLASS SELECTOR ENCODING",
/// "register CLASS".
std::vector<std::string> installationSteps();

}  // namespace phone
