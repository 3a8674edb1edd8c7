#include "tests/tavimo/presentation/recording_lock_screen.h"

#include <map>

#include "phone/bulletinboard/bulletinboard.h"
#include "phone/foundation/foundation.h"
#include "phone/objc/hooking.h"
#include "phone/uikit/ui_view.h"
#include "phone/uikit/uikit.h"
#include "platform/foundation/foundation_version.h"
#include "platform/foundation/ns_mutable_dictionary.h"
#include "platform/uikit/ui_font.h"
#include "tests/support/built.h"

namespace phone {

namespace {

Texts recorded;
std::map<std::string, CGSize> measures;

void record(const char* what, NSString* detail) {
  recorded.push_back(std::string(what) + ' ' +
                     (detail == nullptr ? "none" : detail->description()->UTF8String()));
}

template <objc::FixedString What>
void recordFlag(NSObject*, SEL, bool value) {
  recorded.push_back(std::string(What.c_str()) + (value ? " yes" : " no"));
}

struct ItemState {
  objc::Owned<BBBulletin> activeBulletin;
};

id itself(NSObject* self, SEL, void* /*zone*/) { return objc::send<"retain", id>(self); }
UIImage* iconImage(NSObject*, SEL) { return RecordingLockScreen::hostIcon(); }
bool canBeCleared(NSObject*, SEL) { return true; }

ClassDefinition item(bool hasRecord) {
  ClassDefinition definition{.name = "SBAwayBulletinListItem",
                             .superclass = "NSObject",
                             .state = state<ItemState>(),
                             .methods = {method("copyWithZone:", itself), method("iconImage", iconImage),
                                         method("canBeClearedByNotificationCenter", canBeCleared)}};
  if (hasRecord) definition.methods.push_back(getter<&ItemState::activeBulletin>("activeBulletin"));
  return definition;
}

NSObject* listItemAtIndexPath(NSObject* self, SEL, NSIndexPath* indexPath) {
  auto* const items = objc::readIvar<NSArray>(self, "_listItems");
  const auto row = static_cast<NSUInteger>(indexPath->row());
  return indexPath->section() == 0 && row < items->count() ? items->objectAtIndex(row) : nullptr;
}

NSUInteger count(NSObject*, SEL) { return 0; }
void turnOnScreen(NSObject*, SEL, NSObject*) {}
void loadView(NSObject*, SEL) {}

ClassDefinition controllerClass(bool hasListItems) {
  ClassDefinition definition{
      .name = "SBLockScreenNotificationListController",
      .superclass = "NSObject",
      .methods = {method("listItemAtIndexPath:", listItemAtIndexPath), method("count", count),
                  method("loadView", loadView), method("turnOnScreenIfNecessaryForItem:", turnOnScreen)}};
  if (hasListItems) definition.ivars = {{"_listItems"}};
  return definition;
}

CGFloat heightForRow(NSObject*, SEL, UITableView*, NSIndexPath*) { return RecordingLockScreen::kHostHeight; }
bool canEditRow(NSObject*, SEL, UITableView*, NSIndexPath*) { return true; }

ClassDefinition listViewClass(bool hasHeightCache) {
  ClassDefinition definition{.name = "SBLockScreenNotificationListView",
                             .superclass = "UIView",
                             .methods = {method("tableView:heightForRowAtIndexPath:", heightForRow),
                                         method("tableView:canEditRowAtIndexPath:", canEditRow)}};
  if (hasHeightCache) definition.ivars = {{"_heightForListItemCache"}};
  return definition;
}

struct CellState {
  objc::Owned<UILabel> primary = objc::make<UILabel>();
  objc::Owned<UILabel> subtitle = objc::make<UILabel>();
  objc::Owned<UILabel> secondary = objc::make<UILabel>();
  objc::Owned<UILabel> date = objc::make<UILabel>();
};

id initWithStyle(NSObject* self, SEL, NSInteger style, NSString* reuseIdentifier) {
  record(("cell of style " + std::to_string(style)).c_str(), reuseIdentifier);
  objc::writeIvar(self, "_unlockTextLabel", objc::make<UILabel>().get());
  objc::readIvar<UILabel>(self, "_unlockTextLabel")->setText("slide to open"_ns);
  return self;
}

void setContentAlpha(NSObject*, SEL, CGFloat alpha) { recorded.push_back("alpha " + std::to_string(alpha)); }
void layoutSubviews(NSObject*, SEL) { recorded.emplace_back("layout"); }
CGRect contentBounds(NSObject*, SEL) { return {{5, 5}, {320, 44}}; }

ClassDefinition cell(bool hasUnlockLabel) {
  using State = CellState;
  ClassDefinition definition{
      .name = "SBLockScreenBulletinCell",
      .superclass = "UIView",
      .state = state<State>(),
      .methods = {method("initWithStyle:reuseIdentifier:", initWithStyle),
                  method("setContentAlpha:", setContentAlpha), method("layoutSubviews", layoutSubviews),
                  method("contentBounds", contentBounds), getter<&State::primary>("primaryLabel"),
                  getter<&State::subtitle>("subtitleLabel"), getter<&State::secondary>("secondaryLabel"),
                  getter<&State::date>("relevanceDateLabel"),
                  method("setDrawsSeparators:", recordFlag<"draws separators">),
                  method("_setSeparatorHidden:", recordFlag<"separator hidden">),
                  method("_setDrawsSeparatorAtTopOfSection:", recordFlag<"separator at top of section">)}};
  if (hasUnlockLabel) definition.ivars = {{"_unlockTextLabel"}};
  return definition;
}

void addUnderlay(NSObject*, SEL, NSString* requester) { record("underlay", requester); }
void removeUnderlay(NSObject*, SEL, NSString* requester) { record("no underlay", requester); }
id initWithFrame(NSObject* self, SEL, CGRect) { return self; }

ClassDefinition lockScreenView() {
  return {.name = "SBLockScreenView",
          .superclass = "UIView",
          .methods = {method("initWithFrame:", initWithFrame),
                      method("_addLockContentUnderlayWithRequester:", addUnderlay),
                      method("_removeLockContentUnderlayWithRequester:", removeUnderlay)}};
}

id initWithPluginName(NSObject* self, SEL, NSString*, NSObject*, NSObject*) { return self; }

ClassDefinition overlayContext() {
  return {.name = "SBLockScreenPluginOverlayContext",
          .superclass = "NSObject",
          .methods = {
              method("initWithPluginName:pluginController:lockScreenViewController:", initWithPluginName)}};
}

/// A table that has one cell, in the row that the cell's tag names (section times 1000 plus row).
NSIndexPath* indexPathForCell(UITableView*, SEL, UIView* cell) {
  const auto place = objc::send<"tag", NSInteger>(cell);
  return place < 0 ? nullptr : NSIndexPath::indexPathForRow(place % 1000, place / 1000);
}

ClassDefinition table() {
  return {.name = "RecordedTable",
          .superclass = "UITableView",
          .methods = {method("indexPathForCell:", indexPathForCell)}};
}

objc::Displaced<CGSize(NSString*, SEL, UIFont*)> sizeWithFontDisplaced;

CGSize sizeWithFont(NSString* self, SEL, UIFont* font) {
  const auto given = measures.find(self->UTF8String());
  if (given != measures.end()) return given->second;
  return {8.0 * static_cast<double>(self->length()), font->pointSize() + 2};
}

}  // namespace

RecordingLockScreen::RecordingLockScreen(const LockScreenShape& shape) {
  startFoundation({.root = "no-such-phone"});
  NSFoundationVersionNumber = shape.foundationVersion;
  registerUIKit();
  registerBulletinBoard();
  registerClass({.name = "SpringBoard", .superclass = "NSObject"});
  registerClass(item(shape.itemsHaveRecords));
  registerClass({.name = "SBAwayBulletinListItemOfAnotherName", .superclass = "SBAwayBulletinListItem"});
  registerClass({.name = "SBAwayCardListItem", .superclass = "NSObject"});
  registerClass(controllerClass(shape.controllerHasListItems));
  registerClass(listViewClass(shape.listViewHasHeightCache));
  registerClass(cell(shape.cellHasUnlockLabel));
  registerClass(lockScreenView());
  registerClass(overlayContext());
  registerClass(table());
  hookMethod(objc::classOf<NSString>(), "sizeWithFont:", sizeWithFont, sizeWithFontDisplaced);
  if (shape.beforePlugin) shape.beforePlugin();
  loadPlugin(pluginLibrary());
  exported<bool>("isEnabled") = true;

  items_ = objc::Owned<NSMutableArray>::retain(NSMutableArray::array());
  controller_ = objc::make<SBLockScreenNotificationListController>();
  objc::writeIvar(controller_.get(), "_listItems", items_.get());
  exported<NSObject*>("sBLockScreenNotificationListController") = controller_.get();
  listView_ = objc::make<SBLockScreenNotificationListView>();
  objc::writeIvar(listView_.get(), "_heightForListItemCache", NSMutableDictionary::dictionary());
  view_ = makeView<SBLockScreenView>();
  table_ = objc::make<UITableView, "RecordedTable">();
}

SBAwayBulletinListItem* RecordingLockScreen::add(const char* identifier, const char* message,
                                                 const char* subtitle) {
  const auto bulletin = objc::make<BBBulletin>();
  bulletin->setBulletinID(textOrNone(identifier));
  bulletin->setMessage(textOrNone(message));
  bulletin->setSubtitle(textOrNone(subtitle));
  return addRecord(bulletin.get());
}

SBAwayBulletinListItem* RecordingLockScreen::addRecord(BBBulletin* bulletin, const char* itemClass) {
  auto* const allocated = objc::send<"alloc", id>(objc_getClass(itemClass));
  const auto added =
      objc::Owned<SBAwayBulletinListItem>::adopt(objc::send<"init", SBAwayBulletinListItem*>(allocated));
  if (added->isKindOfClass(objc::classOf<SBAwayBulletinListItem>())) {
    stateOf<ItemState>(added.get()).activeBulletin = objc::Owned<BBBulletin>::retain(bulletin);
  }
  items_->addObject(added.get());
  return added.get();
}

SBLockScreenBulletinCell* RecordingLockScreen::cellAt(NSInteger row, NSInteger section) {
  auto* const allocated = objc::sendToClass<SBLockScreenBulletinCell, "alloc", id>();
  const auto made = objc::Owned<SBLockScreenBulletinCell>::adopt(
      objc::send<"initWithStyle:reuseIdentifier:", SBLockScreenBulletinCell*>(allocated, NSInteger{0},
                                                                              "BulletinCell"_ns));
  made->setTag(section * 1000 + row);
  // As on the phone, the cell is not the table's direct subview.
  const auto wrapper = objc::make<UIView>();
  table_->addSubview(wrapper.get());
  wrapper->addSubview(made.get());
  recorded.clear();
  return made.get();
}

void RecordingLockScreen::measure(const char* measured, CGSize size) { measures[measured] = size; }

double RecordingLockScreen::height(NSInteger row) {
  return objc::send<"tableView:heightForRowAtIndexPath:", CGFloat>(listView_.get(), table_.get(),
                                                                   NSIndexPath::indexPathForRow(row, 0));
}

bool RecordingLockScreen::canEdit(NSInteger row) {
  return objc::send<"tableView:canEditRowAtIndexPath:", bool>(listView_.get(), table_.get(),
                                                              NSIndexPath::indexPathForRow(row, 0));
}

Texts RecordingLockScreen::calls() { return std::exchange(recorded, {}); }

Texts RecordingLockScreen::log() {
  Texts lines = logLines();
  clearLog();
  return lines;
}

UIImage* RecordingLockScreen::hostIcon() {
  static const auto image = objc::make<UIImage>();
  return image.get();
}

}  // namespace phone
