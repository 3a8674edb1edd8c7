#include "benchmarks/support/plain_host.h"

#include <stdexcept>
#include <string>

#include "phone/objc/class_definition.h"
#include "platform/bulletinboard/bb_bulletin.h"
#include "platform/foundation/ns_mutable_array.h"
#include "platform/foundation/ns_mutable_dictionary.h"
#include "platform/uikit/ui_color.h"
#include "platform/uikit/ui_font.h"
#include "platform/uikit/ui_label.h"
#include "platform/uikit/ui_table_view.h"

namespace benchmarks {

namespace {

using objc::Owned;
using phone::ClassDefinition;
using phone::classMethod;
using phone::getter;
using phone::method;
using phone::property;
using phone::setter;
using phone::state;
using phone::stateOf;

struct BulletinState {
  Owned<NSString> bulletinID;
  Owned<NSString> message;
  Owned<NSString> subtitle;
};

struct ListItemState {
  Owned<BBBulletin> activeBulletin;
};

struct RowState {
  NSInteger row = 0;
  NSInteger section = 0;
};

struct LabelState {
  Owned<UIFont> font;
  Owned<UIColor> textColor;
  Owned<NSString> text;
  CGRect frame{};
};

struct CellState {
  Owned<UILabel> primaryLabel = objc::make<UILabel>();
  Owned<UILabel> subtitleLabel = objc::make<UILabel>();
  Owned<UILabel> secondaryLabel = objc::make<UILabel>();
  Owned<UILabel> relevanceDateLabel = objc::make<UILabel>();
  Owned<UIView> superview;
  bool separatorHidden = false;
  bool separatorAtTop = false;
};

struct TableState {
  Owned<NSIndexPath> row;
};

template <typename View, objc::FixedString ClassName>
View* sharedInstance(Class, SEL) {
  static View* const shared = objc::make<View, ClassName>().relinquish();
  return shared;
}

UIFont* fontOfSize(Class, SEL, CGFloat) { return sharedInstance<UIFont, "UIFont">(nullptr, nullptr); }
UIFont* sameFont(UIFont* self, SEL, CGFloat) { return self; }
CGSize fixedSize(NSString*, SEL, UIFont*) { return {100, 20}; }

NSUInteger plainCount(SBLockScreenNotificationListController* self, SEL) {
  return objc::readIvar<NSArray>(self, "_listItems")->count();
}
NSObject* itemAt(SBLockScreenNotificationListController* self, SEL, NSIndexPath* path) {
  auto* const items = objc::readIvar<NSArray>(self, "_listItems");
  const auto row = static_cast<NSUInteger>(path->row());
  return row < items->count() ? items->objectAtIndex(row) : nullptr;
}
CGFloat fixedHeight(NSObject*, SEL, UITableView*, NSIndexPath*) { return 60; }
bool answerYes(NSObject*, SEL) { return true; }
bool canEdit(NSObject*, SEL, UITableView*, NSIndexPath*) { return true; }
UIImage* noIcon(NSObject*, SEL) { return nullptr; }
id initCell(id self, SEL, NSInteger, NSString*) { return self; }
id initView(id self, SEL, CGRect) { return self; }
id initOverlay(id self, SEL, NSString*, NSObject*, NSObject*) { return self; }
void takeAlpha(NSObject*, SEL, CGFloat) {}
void takeObject(NSObject*, SEL, NSObject*) {}
void takeRequester(NSObject*, SEL, NSString*) {}
void doNothing(NSObject*, SEL) {}
CGRect contentBounds(NSObject*, SEL) { return {{0, 0}, {320, 60}}; }
NSIndexPath* indexPathForCell(UITableView* self, SEL, UIView*) { return stateOf<TableState>(self).row.get(); }

ClassDefinition bulletin() {
  return {.name = "BBBulletin",
          .superclass = "NSObject",
          .state = state<BulletinState>(),
          .methods = {property<&BulletinState::bulletinID, "bulletinID">(),
                      property<&BulletinState::message, "message">(),
                      getter<&BulletinState::subtitle>("subtitle")}};
}

ClassDefinition listItem() {
  return {.name = "SBAwayBulletinListItem",
          .superclass = "NSObject",
          .state = state<ListItemState>(),
          .methods = {getter<&ListItemState::activeBulletin>("activeBulletin"), method("iconImage", noIcon),
                      method("canBeClearedByNotificationCenter", answerYes)}};
}

ClassDefinition listController() {
  return {.name = "SBLockScreenNotificationListController",
          .superclass = "NSObject",
          .ivars = {{"_listItems"}, {"_observer"}},
          .methods = {method("count", plainCount), method("listItemAtIndexPath:", itemAt),
                      method("loadView", doNothing), method("turnOnScreenIfNecessaryForItem:", takeObject)}};
}

ClassDefinition listView() {
  return {.name = "SBLockScreenNotificationListView",
          .superclass = "NSObject",
          .ivars = {{"_heightForListItemCache"}},
          .methods = {method("tableView:heightForRowAtIndexPath:", fixedHeight),
                      method("tableView:canEditRowAtIndexPath:", canEdit)}};
}

ClassDefinition cell() {
  return {.name = "SBLockScreenBulletinCell",
          .superclass = "NSObject",
          .ivars = {{"_unlockTextLabel"}},
          .state = state<CellState>(),
          .methods = {method("initWithStyle:reuseIdentifier:", initCell),
                      method("setContentAlpha:", takeAlpha), method("layoutSubviews", doNothing),
                      method("contentBounds", contentBounds), getter<&CellState::superview>("superview"),
                      getter<&CellState::primaryLabel>("primaryLabel"),
                      getter<&CellState::subtitleLabel>("subtitleLabel"),
                      getter<&CellState::secondaryLabel>("secondaryLabel"),
                      getter<&CellState::relevanceDateLabel>("relevanceDateLabel"),
                      setter<&CellState::separatorHidden>("_setSeparatorHidden:"),
                      setter<&CellState::separatorAtTop>("_setDrawsSeparatorAtTopOfSection:")}};
}

ClassDefinition label() {
  return {.name = "UILabel",
          .superclass = "NSObject",
          .state = state<LabelState>(),
          .methods = {property<&LabelState::font, "font">(), property<&LabelState::textColor, "textColor">(),
                      property<&LabelState::text, "text">(), setter<&LabelState::frame>("setFrame:")}};
}

ClassDefinition row() {
  return {.name = "PlainRow",
          .superclass = "NSObject",
          .state = state<RowState>(),
          .methods = {getter<&RowState::row>("row"), getter<&RowState::section>("section")}};
}

}  // namespace

void registerPlainHost() {
  const ClassDefinition definitions[] = {
      {.name = "SpringBoard", .superclass = "NSObject"},
      {.name = "UIFont",
       .superclass = "NSObject",
       .methods = {classMethod("systemFontOfSize:", fontOfSize), method("fontWithSize:", sameFont)}},
      {.name = "UIColor",
       .superclass = "NSObject",
       .methods = {classMethod("clearColor", sharedInstance<UIColor, "UIColor">),
                   classMethod("whiteColor", sharedInstance<UIColor, "UIColor">)}},
      label(),
      row(),
      {.name = "UITableView",
       .superclass = "NSObject",
       .state = state<TableState>(),
       .methods = {method("indexPathForCell:", indexPathForCell)}},
      bulletin(),
      listItem(),
      listController(),
      listView(),
      cell(),
      {.name = "SBLockScreenPluginOverlayContext",
       .superclass = "NSObject",
       .methods = {method("initWithPluginName:pluginController:lockScreenViewController:", initOverlay)}},
      {.name = "SBLockScreenView",
       .superclass = "NSObject",
       .methods = {method("initWithFrame:", initView),
                   method("_addLockContentUnderlayWithRequester:", takeRequester),
                   method("_removeLockContentUnderlayWithRequester:", takeRequester)}},
  };
  for (const ClassDefinition& definition : definitions) phone::registerClass(definition);
  class_addMethod(objc::classOf<NSString>(), objc::selector<"sizeWithFont:">(),
                  reinterpret_cast<IMP>(fixedSize), objc::MethodEncoding<CGSize, UIFont*>::value.c_str());
}

IMP implementationOf(const char* className, const char* selector) {
  auto* const hostClass = static_cast<Class>(objc_getClass(className));
  Method const found =
      hostClass == nullptr ? nullptr : class_getInstanceMethod(hostClass, sel_registerName(selector));
  if (found == nullptr) throw std::runtime_error(std::string("no method ") + className + " " + selector);
  return method_getImplementation(found);
}

Owned<SBAwayBulletinListItem> makeListItem(NSString* identifier) {
  const auto record = objc::make<BBBulletin>();
  record->setBulletinID(identifier);
  auto item = objc::make<SBAwayBulletinListItem>();
  stateOf<ListItemState>(item.get()).activeBulletin = record;
  return item;
}

Owned<SBLockScreenNotificationListController> makeListController(NSArray* items) {
  auto controller = objc::make<SBLockScreenNotificationListController>();
  objc::writeIvar(controller.get(), "_listItems", items);
  return controller;
}

Owned<NSIndexPath> makeRow(NSInteger row) {
  auto path = objc::make<NSIndexPath, "PlainRow">();
  stateOf<RowState>(path.get()).row = row;
  return path;
}

Owned<SBLockScreenBulletinCell> makeCell(NSIndexPath* row) {
  const auto table = objc::make<UITableView>();
  stateOf<TableState>(table.get()).row = Owned<NSIndexPath>::retain(row);
  auto cell = objc::make<SBLockScreenBulletinCell>();
  auto& parts = stateOf<CellState>(cell.get());
  parts.superview = Owned<UIView>::retain(table.get());
  for (const auto& label :
       {parts.primaryLabel, parts.subtitleLabel, parts.secondaryLabel, parts.relevanceDateLabel}) {
    label->setFont(UIFont::systemFontOfSize(14));
  }
  return cell;
}

}  // namespace benchmarks
