#include "tavimo/editor/event_orv_item.h"

#include <bit>
#include <cstddef>
#include <iterator>

#include "platform/objc/ivar.h"
#include "tavimo/editor/event_visibility.h"
#include "tavimo/editor/lock_screen_row.h"

namespace tavimo {

namespace {

constexpr const char* kObjectVariables[] = {"cell", "mySwitch", "disabledHelpButton", "tapGestureRecognizer"};
constexpr const char* kObjectEncodings[] = {"@\"UITableViewCell\"", "@\"UISwitch\"", "@\"UIButton\"",
                                            "@\"UITapGestureRecognizer\""};

objc::Boolean& choiceOf(EKEventOrvItem* item) {
  static const std::ptrdiff_t offset =
      ivar_getOffset(class_getInstanceVariable(objc::classNamed<"EKEventOrvItem">(), "_showOnLockscreen"));
  return *reinterpret_cast<objc::Boolean*>(reinterpret_cast<std::byte*>(item) + offset);
}

bool showOnLockscreen(EKEventOrvItem* self, SEL /*selector*/) { return choiceOf(self) != 0; }

void setShowOnLockscreen(EKEventOrvItem* self, SEL /*selector*/, bool show) { choiceOf(self) = show; }

void setCalendarItem(EKEventOrvItem* self, SEL selector, EKCalendarItem* item, EKEventStore* store) {
  objc::sendSuper(objc::classNamed<"EKEventEditItem">(), self, selector, item, store);
  self->setShowOnLockscreen(isShownOnLockScreen(externalURLText(item)));
}

UITableViewCell* cellForSubitem(EKEventOrvItem* self, SEL /*selector*/, NSUInteger index) {
  if (index != 0) return nullptr;
  LockScreenRow row = makeLockScreenRow(self);
  row.toggle->setOn(self->showOnLockscreen());
  objc::writeIvar(self, "cell", row.cell.get());
  objc::writeIvar(self, "mySwitch", row.toggle.get());
  return row.cell.autorelease();
}

UITableViewCell* cellForSubitemInSubsection(EKEventOrvItem* self, SEL /*selector*/, NSUInteger index,
                                            NSUInteger /*subsection*/) {
  return self->cellForSubitem(index);
}

void switchChanged(EKEventOrvItem* self, SEL /*selector*/, UISwitch* sender) {
  self->setShowOnLockscreen(sender->isOn());
}

void dealloc(EKEventOrvItem* self, SEL selector) {
  for (const char* const name : kObjectVariables) objc::writeIvar<NSObject>(self, name, nullptr);
  objc::sendSuper(objc::classNamed<"EKEventEditItem">(), self, selector);
}

template <auto Function>
void addMethod(Class target, const char* selector) {
  class_addMethod(target, sel_registerName(selector), objc::implementationOf<Function>(),
                  objc::encodingOf(Function));
}

}  // namespace

void registerEventOrvItem() {
  Class const superclass = objc::classNamed<"EKEventEditItem">();
  if (superclass == nullptr) return;
  Class const item = objc_allocateClassPair(superclass, "EKEventOrvItem", 0);
  if (item == nullptr) return;
  for (std::size_t i = 0; i < std::size(kObjectVariables); ++i) {
    class_addIvar(item, kObjectVariables[i], sizeof(id), std::countr_zero(alignof(id)), kObjectEncodings[i]);
  }
  class_addIvar(item, "_showOnLockscreen", sizeof(objc::Boolean), 0, objc::Encoding<bool>::value.c_str());
  addMethod<setCalendarItem>(item, "setCalendarItem:store:");
  addMethod<cellForSubitemInSubsection>(item, "cellForSubitemAtIndex:inSubsection:");
  addMethod<cellForSubitem>(item, "cellForSubitemAtIndex:");
  addMethod<switchChanged>(item, "switchChanged:");
  addMethod<showOnLockscreen>(item, "showOnLockscreen");
  addMethod<setShowOnLockscreen>(item, "setShowOnLockscreen:");
  addMethod<dealloc>(item, "dealloc");
  objc_registerClassPair(item);
}

}  // namespace tavimo
