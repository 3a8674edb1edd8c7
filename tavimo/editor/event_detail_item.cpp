#include "tavimo/editor/event_detail_item.h"

#include "platform/eventkit/ek_event.h"
#include "platform/uikit/ui_alert_view.h"
#include "platform/uikit/ui_tap_gesture_recognizer.h"
#include "tavimo/editor/associated_property.h"
#include "tavimo/editor/event_visibility.h"
#include "tavimo/editor/lock_screen_row.h"
#include "tavimo/editor/views_on_screen.h"
#include "tavimo/events/hidden_event_store.h"
#include "tavimo/settings/log.h"

namespace tavimo {

namespace {

template <objc::FixedString Name>
void setObject(EKEventDetailItemOrv* item, NSObject* value) {
  setObjectProperty<Name>(item, nullptr, value);
}

template <objc::FixedString Name, typename Type>
Type* getObject(EKEventDetailItemOrv* item) {
  return static_cast<Type*>(objectProperty<Name>(item, nullptr));
}

void setShown(EKEventDetailItemOrv* item, bool shown) {
  setFlagProperty<"showOnLockscreen">(item, nullptr, shown);
}

/// Whether the event that the item was pointed at last has no URL text: `eventURI` is then an earlier
/// event's.
constexpr objc::FixedString kLacksURLText = "orvLacksURLText";

void buildRow(EKEventDetailItemOrv* item) {
  const LockScreenRow row = makeLockScreenRow(item);
  setObject<"cell">(item, row.cell.get());
  setObject<"dndSwitch">(item, row.toggle.get());
  const auto recognizer = objc::makeWith<UITapGestureRecognizer, "initWithTarget:action:">(
      item, objc::selector<"showDisabledHelp">());
  setObject<"tapGestureRecognizer">(item, recognizer.get());
}

/// Makes flips write this event's entry; reads no store. Returns the event's URL text, or nil (borrowed).
NSString* pointAt(EKEventDetailItemOrv* item, EKEvent* event) {
  NSString* const urlText = externalURLText(event);
  setFlagProperty<kLacksURLText>(item, nullptr, urlText == nullptr);
  if (urlText != nullptr) setObject<"eventURI">(item, urlText);
  return urlText;
}

}  // namespace

void setEvent(EKEventDetailItemOrv* self, SEL /*selector*/, EKEvent* event, EKEventStore* /*store*/) {
  setShown(self, isShownOnLockScreen(pointAt(self, event)));
}

UITableViewCell* detailCellInSubsection(EKEventDetailItemOrv* self, SEL /*selector*/, NSUInteger index,
                                        NSUInteger /*subsection*/) {
  return self->cellForSubitem(index);
}

UITableViewCell* detailCell(EKEventDetailItemOrv* self, SEL /*selector*/, NSUInteger index) {
  if (index != 0) return nullptr;
  if (getObject<"cell", UITableViewCell>(self) == nullptr) buildRow(self);
  self->dndSwitch()->setOn(self->showOnLockscreen());
  return getObject<"cell", UITableViewCell>(self);
}

void detailSwitchChanged(EKEventDetailItemOrv* self, SEL /*selector*/, UISwitch* sender) {
  const bool shown = sender->isOn();
  // The host points the item too, at the event of any list that it builds.
  if (EKEventViewController* const view = viewInUse(); view != nullptr) pointAt(self, view->event());
  setShown(self, shown);
  NSString* const urlText =
      flagProperty<kLacksURLText>(self, nullptr) ? nullptr : getObject<"eventURI", NSString>(self);
  NSString* const key = hiddenEventKey(urlText);
  logBare<"Orv switch changed to %@. Event URI: %@, trimmed:%@">(shown ? "ON"_ns : "OFF"_ns, urlText, key);
  if (key != nullptr) setEventHidden(key, !shown);
}

void showDisabledHelp(EKEventDetailItemOrv* self, SEL /*selector*/) {
  const auto alert = objc::makeWith<UIAlertView,
                                    "initWithTitle:message:delegate:cancelButtonTitle:otherButtonTitles:">(
      "DnD is not available"_ns,
      "Automatic Do Not Disturb mode is available if the event is not an all-day one, and if at least one alert is set."_ns,
      self, "OK"_ns, static_cast<NSString*>(nullptr));
  alert->show();
}

}  // namespace tavimo
