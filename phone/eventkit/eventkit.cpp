#include "phone/eventkit/eventkit.h"

#include "phone/eventkit/ek_objects.h"

namespace phone {

void registerEventKit() {
  for (const ClassDefinition& definition :
       {ekCalendar(), ekCalendarItem(), ekPersistentEvent(), ekEvent(), ekEventPredicate(), ekEventStore()}) {
    registerClass(definition);
  }
}

}  // namespace phone
