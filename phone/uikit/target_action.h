// Targets and actions: who is told by which message when something happens.
#pragma once

#include "platform/foundation/ns_object.h"

namespace phone {

struct TargetAction {
  /// Not owned, as on the phone.
  NSObject* target = nullptr;
  SEL action = nullptr;
  NSUInteger events = 0;
};

/// Sends the action to its target, with the sender when the action takes an argument.
void sendAction(const TargetAction& targetAction, NSObject* sender);

}  // namespace phone
