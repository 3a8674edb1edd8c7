// The verbs of the command, in the order of its help. Each adds itself, with its options and what it does.
#pragma once

#include "phone/app/invocation.h"

namespace phone {

void addCreateVerb(CLI::App& command, const Invocation& invocation);
void addLockscreenVerb(CLI::App& command, const Invocation& invocation);
void addCalendarsVerb(CLI::App& command, const Invocation& invocation);
void addSettingsVerb(CLI::App& command, const Invocation& invocation);
void addOrderVerb(CLI::App& command, const Invocation& invocation);

}  // namespace phone
