// How an event editor closes, as the phone numbers it.
#pragma once

#include "platform/foundation/ns_object.h"

namespace phone {

enum class EditAction : NSInteger { kCancelled = 0, kSaved = 1, kDeleted = 2 };

}  // namespace phone
