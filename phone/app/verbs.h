// The verbs of the command, in the order of its help. Each adds itself, with its options and what it does.
#pragma once

#include "phone/app/invocation.h"

namespace phone {

void addCreateVerb(CLI::App& command, const Invocation& invocation);
void addImportVerb(CLI::App& command, const Invocation& invocation);
void addExportVerb(CLI::App& command, const Invocation& invocation);
void addLockscreenVerb(CLI::App& command, const Invocation& invocation);
void addCalendarsVerb(CLI::App& command, const Invocation& invocation);
void addHideVerbs(CLI::App& command, const Invocation& invocation);
void addEventVerb(CLI::App& command, const Invocation& invocation);
void addSettingsVerb(CLI::App& command, const Invocation& invocation);
void addOrderVerb(CLI::App& command, const Invocation& invocation);
void addCompletionVerbs(CLI::App& command, const Invocation& invocation);
void addHelpVerb(CLI::App& command);

/// The verbs below `phone calendars` that change calendars.
void addCalendarsRenameVerb(CLI::App& calendars, const Invocation& invocation);
void addCalendarsRemoveVerb(CLI::App& calendars, const Invocation& invocation);

/// The verbs below `phone event`.
void addEventListVerb(CLI::App& event, const Invocation& invocation);
void addEventShowVerb(CLI::App& event, const Invocation& invocation);
void addEventNewVerb(CLI::App& event, const Invocation& invocation);
void addEventEditVerb(CLI::App& event, const Invocation& invocation);

}  // namespace phone
