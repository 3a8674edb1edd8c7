// A process with the user interface kit and nothing else of the phone.
#pragma once

#include <gtest/gtest.h>
#include <string>

#include "phone/foundation/foundation.h"
#include "phone/uikit/uikit.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/literal.h"

namespace phone {

class UIKitTest : public testing::Test {
 protected:
  explicit UIKitTest(const HostOptions& options = {}) {
    startFoundation(options);
    registerUIKit();
  }

  static NSString* text(const std::string& utf8) { return NSString::stringWithUTF8String(utf8.c_str()); }

  AutoreleasePool pool_;
};

}  // namespace phone
