#include "phone/calendarui/edit_items.h"

#include <string_view>

#include "phone/calendarui/row_item.h"
#include "phone/uikit/ui_view.h"
#include "platform/calendarui/ek_event_edit_item.h"
#include "platform/eventkit/ek_event.h"
#include "platform/eventkit/ek_event_store.h"
#include "platform/foundation/foundation_version.h"

namespace phone {

namespace {

struct EditItemState {
  objc::Owned<EKCalendarItem> calendarItem;
  objc::Owned<EKEventStore> store;
};

void setCalendarItem(EKEventEditItem* self, SEL, EKCalendarItem* item, EKEventStore* store) {
  auto& state = stateOf<EditItemState>(self);
  state.calendarItem = objc::Owned<EKCalendarItem>::retain(item);
  state.store = objc::Owned<EKEventStore>::retain(store);
}

ClassDefinition baseItem() {
  ClassDefinition item{.name = "EKEventEditItem",
                       .superclass = "NSObject",
                       .state = state<EditItemState>(),
                       .methods = plainItemMethods()};
  item.methods.push_back(method("setCalendarItem:store:", setCalendarItem));
  item.methods.push_back(getter<&EditItemState::calendarItem>("calendarItem"));
  item.methods.push_back(getter<&EditItemState::store>("store"));
  return item;
}

template <EventRows rows>
ClassDefinition field(const char* name) {
  return {
      .name = name, .superclass = "EKEventEditItem", .methods = TextItem<"calendarItem", rows>::methods()};
}

using DateItem = TextItem<"calendarItem", dateFields>;

EKEvent* eventOf(EKEventEditItem* item) {
  return static_cast<EKEvent*>(stateOf<EditItemState>(item).calendarItem.get());
}

// The all-day switch stands in the first row of the dates.
UITableViewCell* dateCell(EKEventEditItem* self, SEL selector, NSUInteger index) {
  UITableViewCell* const cell = DateItem::cellForSubitem(self, selector, index);
  if (cell == nullptr || index != 0) return cell;
  constexpr double kMargin = 15;
  auto allDay = objc::make<UISwitch>();
  allDay->setOn(eventOf(self)->isAllDay());
  allDay->addTarget(self, objc::selector<"allDayChanged:">(), UISwitch::kValueChanged);
  const CGSize content = cell->contentView()->bounds().size;
  const CGSize size = allDay->sizeThatFits({});
  allDay->setFrame({{content.width - size.width - kMargin, (content.height - size.height) / 2}, size});
  allDay->setAutoresizingMask(UIView::kFlexibleLeftMargin);
  cell->contentView()->addSubview(allDay.get());
  return cell;
}

void allDayChanged(EKEventEditItem* self, SEL, UISwitch* sender) { eventOf(self)->setAllDay(sender->isOn()); }

ClassDefinition dateField(const char* name) {
  return {.name = name,
          .superclass = "EKEventEditItem",
          .methods = {method("numberOfSubitems", DateItem::numberOfSubitems),
                      method("cellForSubitemAtIndex:", dateCell), method("allDayChanged:", allDayChanged)}};
}

}  // namespace

std::vector<ClassDefinition> editItemClasses() {
  return {baseItem(),
          field<titleField>("EKEventTitleEditItem"),
          field<locationField>("EKEventLocationEditItem"),
          dateField("EKEventDateEditItem"),
          field<recurrenceRow>("EKEventRecurrenceEditItem"),
          field<travelTimeField>("EKEventTravelTimeEditItem"),
          field<calendarRow>("EKEventCalendarEditItem"),
          field<attendeesRow>("EKEventAttendeesEditItem"),
          field<alarmRow>("EKEventAlarmEditItem"),
          field<availabilityRow>("EKEventAvailabilityEditItem"),
          field<urlField>("EKEventURLEditItem"),
          field<notesField>("EKEventNotesEditItem")};
}

std::vector<ItemPlace> editItemPlaces() {
  std::vector<ItemPlace> places = {
      {"EKEventTitleEditItem", 0},      {"EKEventLocationEditItem", 0},   {"EKEventDateEditItem", 1},
      {"EKEventRecurrenceEditItem", 1}, {"EKEventTravelTimeEditItem", 1}, {"EKEventCalendarEditItem", 2},
      {"EKEventAttendeesEditItem", 2},  {"EKEventAlarmEditItem", 3},      {"EKEventAvailabilityEditItem", 3},
      {"EKEventURLEditItem", 4},        {"EKEventNotesEditItem", 4}};
  // Travel time came with iOS 8 and moved every later field up by one.
  if (!isIos8OrLater()) {
    std::erase_if(places, [](const ItemPlace& place) {
      return std::string_view(place.className) == "EKEventTravelTimeEditItem";
    });
  }
  return places;
}

}  // namespace phone
