#include "phone/calendarui/calendarui.h"

#include "phone/calendarui/add_event_view_controller.h"
#include "phone/calendarui/detail_items.h"
#include "phone/calendarui/edit_items.h"
#include "phone/calendarui/ek_event_edit_view_controller.h"
#include "phone/calendarui/ek_event_editor.h"
#include "phone/calendarui/ek_event_view_controller.h"

namespace phone {

void registerCalendarUI() {
  for (const ClassDefinition& item : editItemClasses()) registerClass(item);
  for (const ClassDefinition& item : detailItemClasses()) registerClass(item);
  registerClass(ekEventEditor());
  registerClass(ekEventEditViewController());
  registerClass(addEventViewController());
  registerClass(ekEventViewController());
}

}  // namespace phone
