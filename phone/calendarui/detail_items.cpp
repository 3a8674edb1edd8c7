#include "phone/calendarui/detail_items.h"

#include "phone/calendarui/row_item.h"
#include "platform/calendarui/ek_event_detail_item.h"
#include "platform/eventkit/ek_event.h"
#include "platform/eventkit/ek_event_store.h"

namespace phone {

namespace {

struct DetailItemState {
  objc::Owned<EKEvent> event;
  objc::Owned<EKEventStore> store;
};

void setEvent(EKEventDetailItem* self, SEL, EKEvent* event, EKEventStore* store) {
  auto& state = stateOf<DetailItemState>(self);
  state.event = objc::Owned<EKEvent>::retain(event);
  state.store = objc::Owned<EKEventStore>::retain(store);
}

ClassDefinition baseItem() {
  ClassDefinition item{.name = "EKEventDetailItem",
                       .superclass = "NSObject",
                       .state = state<DetailItemState>(),
                       .methods = plainItemMethods()};
  item.methods.push_back(method("setEvent:store:", setEvent));
  item.methods.push_back(getter<&DetailItemState::event>("event"));
  item.methods.push_back(getter<&DetailItemState::store>("store"));
  return item;
}

template <EventRows rows>
ClassDefinition part(const char* name) {
  return {.name = name, .superclass = "EKEventDetailItem", .methods = TextItem<"event", rows>::methods()};
}

}  // namespace

std::vector<ClassDefinition> detailItemClasses() {
  return {baseItem(),
          part<headRows>("EKEventTitleDetailItem"),
          part<calendarRow>("EKEventCalendarDetailItem"),
          part<attendeesRow>("EKEventAttendeesDetailItem"),
          part<alarmRow>("EKEventAlarmDetailItem"),
          part<availabilityRow>("EKEventAvailabilityDetailItem"),
          part<noRows>("EKEventURLDetailItem"),
          part<noRows>("EKEventNotesDetailItem")};
}

std::vector<ItemPlace> detailItemPlaces() {
  return {{"EKEventTitleDetailItem", 0},        {"EKEventCalendarDetailItem", 1},
          {"EKEventAttendeesDetailItem", 1},    {"EKEventAlarmDetailItem", 2},
          {"EKEventAvailabilityDetailItem", 2}, {"EKEventURLDetailItem", 3},
          {"EKEventNotesDetailItem", 3}};
}

}  // namespace phone
