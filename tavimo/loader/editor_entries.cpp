// What is installed in the calendar process.
#include "tavimo/editor/associated_property.h"
#include "tavimo/editor/event_detail_item.h"
#include "tavimo/editor/event_editor.h"
#include "tavimo/editor/event_view.h"
#include "tavimo/loader/hook_entry.h"

namespace tavimo {

std::span<const HookEntry> editorEntries() {
  // clang-format off
  static const HookEntry entries[] = {
      replaceMethod("EKEventEditor", "_editItems", editItems, editItemsDisplaced),
      replaceMethod("EKEventEditor", "completeWithAction:animated:", completeWithAction, completeWithActionDisplaced),
      replaceMethod("EKEventViewController", "viewWillAppear:", viewWillAppear, viewWillAppearDisplaced),
      replaceMethod("EKEventViewController", "viewWillDisappear:", viewWillDisappear, viewWillDisappearDisplaced),
      replaceMethod("EKEventViewController", "_items", detailItems, detailItemsDisplaced),
  };
  // clang-format on
  return entries;
}

std::span<const HookEntry> detailItemEntries() {
  static constexpr const char* kItem = "EKEventDetailItemOrv";
  // clang-format off
  static const HookEntry entries[] = {
      replaceMethod(kItem, "setEvent:store:", setEvent, setEventDisplaced),
      replaceMethod(kItem, "cellForSubitemAtIndex:inSubsection:", detailCellInSubsection, detailCellInSubsectionDisplaced),
      replaceMethod(kItem, "cellForSubitemAtIndex:", detailCell, detailCellDisplaced),
      addMethod(kItem, "switchChanged:", detailSwitchChanged),
      addMethod(kItem, "showDisabledHelp", showDisabledHelp),
      addMethod(kItem, "cell", objectProperty<"cell">),
      addMethod(kItem, "setCell:", setObjectProperty<"cell">),
      addMethod(kItem, "eventURI", objectProperty<"eventURI">),
      addMethod(kItem, "setEventURI:", setObjectProperty<"eventURI">),
      addMethod(kItem, "allDayEnabled", flagProperty<"allDayEnabled">),
      addMethod(kItem, "setAllDayEnabled:", setFlagProperty<"allDayEnabled">),
      addMethod(kItem, "noAlarmSet", flagProperty<"noAlarmSet">),
      addMethod(kItem, "setNoAlarmSet:", setFlagProperty<"noAlarmSet">),
      addMethod(kItem, "cellIsVisible", flagProperty<"cellIsVisible">),
      addMethod(kItem, "setCellIsVisible:", setFlagProperty<"cellIsVisible">),
      addMethod(kItem, "showOnLockscreen", flagProperty<"showOnLockscreen">),
      addMethod(kItem, "setShowOnLockscreen:", setFlagProperty<"showOnLockscreen">),
      addMethod(kItem, "dndSwitch", objectProperty<"dndSwitch">),
      addMethod(kItem, "setDndSwitch:", setObjectProperty<"dndSwitch">),
      addMethod(kItem, "disabledHelpButton", objectProperty<"disabledHelpButton">),
      addMethod(kItem, "setDisabledHelpButton:", setObjectProperty<"disabledHelpButton">),
      addMethod(kItem, "tapGestureRecognizer", objectProperty<"tapGestureRecognizer">),
      addMethod(kItem, "setTapGestureRecognizer:", setObjectProperty<"tapGestureRecognizer">),
  };
  // clang-format on
  return entries;
}

}  // namespace tavimo
