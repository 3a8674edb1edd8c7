#include "tavimo/editor/event_orv_item.h"

#include <cstddef>

#include "platform/objc/crossing.h"
#include "platform/objc/ivar.h"
#include "tavimo/editor/event_visibility.h"
#include "tavimo/editor/lock_screen_row.h"

namespace tavimo {

namespace {

objc::Boolean& choiceOf(EKEventOrvItem* item) {
  static const std::ptrdiff_t offset =
      ivar_getOffset(class_getInstanceVariable(objc::classOf<EKEventOrvItem>(), kChoiceVariable));
  return *reinterpret_cast<objc::Boolean*>(reinterpret_cast<std::byte*>(item) + offset);
}

}  // namespace

bool editShowOnLockscreen(EKEventOrvItem* self, SEL /*selector*/) { return choiceOf(self) != 0; }

void editSetShowOnLockscreen(EKEventOrvItem* self, SEL /*selector*/, bool show) { choiceOf(self) = show; }

void editSetCalendarItem(EKEventOrvItem* self, SEL selector, EKCalendarItem* item, EKEventStore* store) {
  objc::sendSuper(objc::classOf<EKEventEditItem>(), self, selector, item, store);
  self->setShowOnLockscreen(isShownOnLockScreen(externalURLText(item)));
}

UITableViewCell* editCell(EKEventOrvItem* self, SEL /*selector*/, NSUInteger index) {
  if (index != 0) return nullptr;
  LockScreenRow row = makeLockScreenRow(self);
  row.toggle->setOn(self->showOnLockscreen());
  objc::writeIvar(self, "cell", row.cell.get());
  objc::writeIvar(self, "mySwitch", row.toggle.get());
  return row.cell.autorelease();
}

UITableViewCell* editCellInSubsection(EKEventOrvItem* self, SEL /*selector*/, NSUInteger index,
                                      NSUInteger /*subsection*/) {
  return self->cellForSubitem(index);
}

void editSwitchChanged(EKEventOrvItem* self, SEL /*selector*/, UISwitch* sender) {
  self->setShowOnLockscreen(sender->isOn());
}

void editDealloc(EKEventOrvItem* self, SEL selector) {
  for (const char* const name : kObjectVariables) objc::writeIvar<NSObject>(self, name, nullptr);
  objc::sendSuper(objc::classOf<EKEventEditItem>(), self, selector);
}

}  // namespace tavimo
