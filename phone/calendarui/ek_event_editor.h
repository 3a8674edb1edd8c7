// EKEventEditor: the form in which an event is made or changed. It works on the event object itself; saving
// and deleting write the calendar database, cancelling writes nothing.
#pragma once

#include "phone/calendarui/edit_action.h"
#include "phone/calendarui/item_table.h"
#include "phone/objc/class_definition.h"
#include "platform/calendarui/ek_event_editor.h"

namespace phone {

ClassDefinition ekEventEditor();

/// The editor's rows as its table holds them; empty until the editor first appears.
const ItemTable& tableOf(EKEventEditor* editor);

/// Makes the table ask its items for their cells again, as after a field was changed.
void reloadRows(EKEventEditor* editor);

}  // namespace phone
