// What is installed in the calendar process.
#include "tavimo/editor/associated_property.h"
#include "tavimo/editor/event_detail_item.h"
#include "tavimo/editor/event_editor.h"
#include "tavimo/editor/event_orv_item.h"
#include "tavimo/editor/event_view.h"
#include "tavimo/loader/hook_entry.h"

namespace tavimo {

std::span<const HookEntry> editorEntries() {
  // clang-format off
  static const HookEntry entries[] = {
      replaceMethod<editItems>("EKEventEditor", "_editItems", editItemsDisplaced),
      replaceMethod<completeWithAction>("EKEventEditor", "completeWithAction:animated:", completeWithActionDisplaced),
      replaceMethod<viewWillAppear>("EKEventViewController", "viewWillAppear:", viewWillAppearDisplaced),
      replaceMethod<viewWillDisappear>("EKEventViewController", "viewWillDisappear:", viewWillDisappearDisplaced),
      replaceMethod<detailItems>("EKEventViewController", "_items", detailItemsDisplaced),
  };
  // clang-format on
  return entries;
}

std::span<const InstanceVariable> editItemVariables() {
  static const InstanceVariable variables[] = {
      {kObjectVariables[0], "@\"UITableViewCell\"", sizeof(id)},
      {kObjectVariables[1], "@\"UISwitch\"", sizeof(id)},
      {kObjectVariables[2], "@\"UIButton\"", sizeof(id)},
      {kObjectVariables[3], "@\"UITapGestureRecognizer\"", sizeof(id)},
      {kChoiceVariable, objc::Encoding<bool>::value.c_str(), sizeof(objc::Boolean)},
  };
  return variables;
}

std::span<const HookEntry> editItemEntries() {
  static constexpr const char* kItem = "EKEventOrvItem";
  // clang-format off
  static const HookEntry entries[] = {
      addMethod<editSetCalendarItem>(kItem, "setCalendarItem:store:"),
      addMethod<editCellInSubsection>(kItem, "cellForSubitemAtIndex:inSubsection:"),
      addMethod<editCell>(kItem, "cellForSubitemAtIndex:"),
      addMethod<editSwitchChanged>(kItem, "switchChanged:"),
      addMethod<editShowOnLockscreen>(kItem, "showOnLockscreen"),
      addMethod<editSetShowOnLockscreen>(kItem, "setShowOnLockscreen:"),
      addMethod<editDealloc>(kItem, "dealloc"),
  };
  // clang-format on
  return entries;
}

std::span<const HookEntry> detailItemEntries() {
  static constexpr const char* kItem = "EKEventDetailItemOrv";
  // clang-format off
  static const HookEntry entries[] = {
      replaceMethod<setEvent>(kItem, "setEvent:store:", setEventDisplaced),
      replaceMethod<detailCellInSubsection>(kItem, "cellForSubitemAtIndex:inSubsection:", detailCellInSubsectionDisplaced),
      replaceMethod<detailCell>(kItem, "cellForSubitemAtIndex:", detailCellDisplaced),
      addMethod<detailSwitchChanged>(kItem, "switchChanged:"),
      addMethod<showDisabledHelp>(kItem, "showDisabledHelp"),
      addMethod<objectProperty<"cell">>(kItem, "cell"),
      addMethod<setObjectProperty<"cell">>(kItem, "setCell:"),
      addMethod<objectProperty<"eventURI">>(kItem, "eventURI"),
      addMethod<setObjectProperty<"eventURI">>(kItem, "setEventURI:"),
      addMethod<flagProperty<"allDayEnabled">>(kItem, "allDayEnabled"),
      addMethod<setFlagProperty<"allDayEnabled">>(kItem, "setAllDayEnabled:"),
      addMethod<flagProperty<"noAlarmSet">>(kItem, "noAlarmSet"),
      addMethod<setFlagProperty<"noAlarmSet">>(kItem, "setNoAlarmSet:"),
      addMethod<flagProperty<"cellIsVisible">>(kItem, "cellIsVisible"),
      addMethod<setFlagProperty<"cellIsVisible">>(kItem, "setCellIsVisible:"),
      addMethod<flagProperty<"showOnLockscreen">>(kItem, "showOnLockscreen"),
      addMethod<setFlagProperty<"showOnLockscreen">>(kItem, "setShowOnLockscreen:"),
      addMethod<objectProperty<"dndSwitch">>(kItem, "dndSwitch"),
      addMethod<setObjectProperty<"dndSwitch">>(kItem, "setDndSwitch:"),
      addMethod<objectProperty<"disabledHelpButton">>(kItem, "disabledHelpButton"),
      addMethod<setObjectProperty<"disabledHelpButton">>(kItem, "setDisabledHelpButton:"),
      addMethod<objectProperty<"tapGestureRecognizer">>(kItem, "tapGestureRecognizer"),
      addMethod<setObjectProperty<"tapGestureRecognizer">>(kItem, "setTapGestureRecognizer:"),
  };
  // clang-format on
  return entries;
}

}  // namespace tavimo
