#include "tests/tavimo/editor/recording_calendar.h"

#include "phone/calendarui/item_table.h"
#include "phone/foundation/foundation.h"
#include "phone/foundation/property_list.h"
#include "phone/objc/class_definition.h"
#include "phone/objc/plugin.h"
#include "phone/uikit/ui_switch.h"
#include "phone/uikit/uikit.h"
#include "platform/foundation/foundation_version.h"
#include "platform/foundation/ns_mutable_dictionary.h"
#include "platform/foundation/ns_url.h"
#include "tests/support/built.h"
#include "tests/tavimo/support/objects.h"

namespace phone {

namespace {

Texts recorded;

void record(const std::string& line) { recorded.push_back(line); }

struct UrlState {
  objc::Owned<NSString> absoluteString;
};

struct EventState {
  objc::Owned<NSURL> externalURI;
};

struct EditorState {
  objc::Owned<EKCalendarItem> calendarItem;
  objc::Owned<NSObject> parent;
  EditorShape shape;
};

struct ParentState {
  objc::Owned<NSObject> parent;
};

struct EventViewState {
  objc::Owned<EKEvent> event;
  objc::Owned<NSArray> items;
};

void addItems(NSMutableArray* items, const char* className, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    items->addObject(
        objc::Owned<NSObject>::adopt(objc::send<"new", NSObject*>(objc_getClass(className))).get());
  }
}

/// Immutable, as most hosts' lists are.
NSArray* frozen(NSMutableArray* items) {
  return objc::sendToClass<NSArray, "arrayWithArray:", NSArray*>(static_cast<NSArray*>(items));
}

void setCalendarItem(NSObject*, SEL, EKCalendarItem* item, EKEventStore* store) {
  record(std::string("setCalendarItem:store: ") + (item == nullptr ? "none" : "event") +
         (store == nullptr ? " none" : " store"));
}
void setEvent(NSObject*, SEL, EKEvent*, EKEventStore*) { record("setEvent:store:"); }
UITableViewCell* noCell(NSObject*, SEL, NSUInteger) { return nullptr; }
UITableViewCell* noCellInSubsection(NSObject*, SEL, NSUInteger, NSUInteger) { return nullptr; }

ClassDefinition itemClass(const char* name, MethodDefinition pointing) {
  return {.name = name,
          .superclass = "NSObject",
          .methods = {pointing, method("cellForSubitemAtIndex:", noCell),
                      method("cellForSubitemAtIndex:inSubsection:", noCellInSubsection)}};
}

const char* editItemClass = nullptr;

NSArray* editItems(NSObject* self, SEL) {
  auto& shape = stateOf<EditorState>(self).shape;
  auto* const built = objc::readIvar<NSArray>(self, "_editItems");
  if (built != nullptr || shape.fields == std::string::npos) return built;
  NSMutableArray* const items = NSMutableArray::array();
  addItems(items, editItemClass, shape.fields);
  objc::writeIvar(self, "_editItems", frozen(items));
  NSMutableArray* const groups = NSMutableArray::array();
  for (const std::size_t length : shape.groups) {
    NSMutableArray* const group = NSMutableArray::array();
    addItems(group, editItemClass, length);
    groups->addObject(frozen(group));
  }
  objc::writeIvar<NSObject>(self, "_orderedEditItems", shape.oddGroups.value_or(groups));
  return frozen(items);
}

EKEventStore* storeOf(NSObject* self, SEL) { return reinterpret_cast<EKEventStore*>(self); }

std::function<void()> completion;

void complete(NSObject*, SEL, NSInteger action, bool animated) {
  record("complete " + std::to_string(action) + (animated ? " animated" : ""));
  if (completion) completion();
}

std::function<void()> viewChange;

void willAppear(NSObject*, SEL, bool animated) {
  record(animated ? "appear animated" : "appear");
  if (viewChange) viewChange();
}
void willDisappear(NSObject*, SEL, bool animated) {
  record(animated ? "disappear animated" : "disappear");
  if (viewChange) viewChange();
}

ClassDefinition editorClass(const CalendarShape& shape) {
  ClassDefinition definition{
      .name = "EKEventEditor",
      .superclass = "NSObject",
      .state = state<EditorState>(),
      .methods = {method("_editItems", editItems), getter<&EditorState::calendarItem>("calendarItem"),
                  getter<&EditorState::parent>("parentViewController"), method("store", storeOf),
                  method("completeWithAction:animated:", complete)}};
  if (shape.editorHasEditItems) definition.ivars.push_back({"_editItems"});
  if (shape.editorHasGroups) definition.ivars.push_back({"_orderedEditItems"});
  return definition;
}

ClassDefinition viewClass() {
  return {.name = "EKEventViewController",
          .superclass = "NSObject",
          .state = state<EventViewState>(),
          .methods = {getter<&EventViewState::event>("event"), getter<&EventViewState::items>("_items"),
                      method("viewWillAppear:", willAppear), method("viewWillDisappear:", willDisappear)}};
}

objc::Owned<NSObject> makeParent(const char* className, NSObject* parent) {
  auto made = objc::Owned<NSObject>::adopt(objc::send<"new", NSObject*>(objc_getClass(className)));
  stateOf<ParentState>(made.get()).parent = objc::Owned<NSObject>::retain(parent);
  return made;
}

}  // namespace

RecordingCalendar::RecordingCalendar(const CalendarShape& shape) {
  startFoundation({.root = root_.path()});
  NSFoundationVersionNumber = shape.foundationVersion;
  std::filesystem::create_directories(storeFile().parent_path());
  registerUIKit();
  registerClass({.name = "GivenURL",
                 .superclass = "NSObject",
                 .state = state<UrlState>(),
                 .methods = {getter<&UrlState::absoluteString>("absoluteString")}});
  registerClass({.name = "EKEvent",
                 .superclass = "NSObject",
                 .state = state<EventState>(),
                 .methods = {getter<&EventState::externalURI>("externalURI")}});
  editItemClass = shape.editItemClass;
  registerClass(itemClass(editItemClass, method("setCalendarItem:store:", setCalendarItem)));
  if (shape.hasDetailItemClass) {
    registerClass(itemClass("EKEventDetailItem", method("setEvent:store:", setEvent)));
  }
  registerClass({.name = "EKEventAlarmDetailItem",
                 .superclass = shape.hasDetailItemClass ? "EKEventDetailItem" : "NSObject"});
  registerClass({.name = "EKEventAlarmDetailItemOfAnotherName", .superclass = "EKEventAlarmDetailItem"});
  registerClass({.name = "Controller",
                 .superclass = "NSObject",
                 .state = state<ParentState>(),
                 .methods = {getter<&ParentState::parent>("parentViewController")}});
  for (const char* const name : {"EKEventEditViewController", "UINavigationController",
                                 "AddEventViewController", "AddEventViewControllerOfAnotherName"}) {
    registerClass({.name = name, .superclass = "Controller"});
  }
  registerClass(editorClass(shape));
  registerClass(viewClass());
  loadPlugin(pluginLibrary());
}

objc::Owned<EKEvent> RecordingCalendar::event(std::optional<std::string> urlText) {
  auto made = objc::make<EKEvent>();
  setUrlText(made.get(), std::move(urlText));
  return made;
}

void RecordingCalendar::setUrlText(EKCalendarItem* event, std::optional<std::string> urlText) {
  objc::Owned<NSURL> url;
  if (urlText) {
    url = objc::make<NSURL, "GivenURL">();
    stateOf<UrlState>(url.get()).absoluteString = objc::Owned<NSString>::retain(text(*urlText));
  }
  stateOf<EventState>(event).externalURI = url;
}

void RecordingCalendar::setTextlessUrl(EKCalendarItem* event) {
  stateOf<EventState>(event).externalURI = objc::make<NSURL, "GivenURL">();
}

objc::Owned<EKEventEditor> RecordingCalendar::editor(EKCalendarItem* event, const EditorShape& shape) {
  auto made = objc::make<EKEventEditor>();
  auto& editor = stateOf<EditorState>(made.get());
  editor.calendarItem = objc::Owned<EKCalendarItem>::retain(event);
  editor.parent = makeParent(shape.parentClass, makeParent(shape.grandparentClass, nullptr).get());
  editor.shape = shape;
  return made;
}

objc::Owned<EKEventEditor> RecordingCalendar::openEditor(EKCalendarItem* event) {
  auto made = editor(event);
  editItems(made.get());
  recorded.clear();
  return made;
}

NSObject* RecordingCalendar::ownItem(EKEventEditor* editor) {
  NSObject* found = nullptr;
  NSArray* const items = editItems(editor);
  for (NSUInteger i = 0; i < items->count(); ++i) {
    if (!items->objectAtIndex(i)->isKindOfClass(objc::classNamed<"EKEventOrvItem">())) continue;
    EXPECT_EQ(found, nullptr) << "the list has more than one";
    found = items->objectAtIndex(i);
  }
  return found;
}

void RecordingCalendar::choose(EKEventEditor* editor, bool shown) {
  UISwitch* const toggle = switchIn(cellOf(ownItem(editor)));
  if (toggle->isOn() != shown) flipSwitch(toggle);
}

bool RecordingCalendar::isShown(EKEventEditor* editor) {
  return objc::send<"showOnLockscreen", bool>(ownItem(editor));
}

std::function<void()>& RecordingCalendar::whileCompleting() { return completion; }

std::function<void()>& RecordingCalendar::whileChangingViews() { return viewChange; }

objc::Owned<EKEventViewController> RecordingCalendar::view(EKEvent* event, const Texts& itemClasses) {
  auto made = objc::make<EKEventViewController>();
  stateOf<EventViewState>(made.get()).event = objc::Owned<EKEvent>::retain(event);
  setItems(made.get(), itemClasses);
  return made;
}

void RecordingCalendar::setItems(EKEventViewController* view, const Texts& itemClasses) {
  NSMutableArray* const items = NSMutableArray::array();
  for (const std::string& name : itemClasses) addItems(items, name.c_str(), 1);
  stateOf<EventViewState>(view).items = objc::Owned<NSArray>::retain(frozen(items));
}

Texts RecordingCalendar::calls() { return std::exchange(recorded, {}); }

Texts RecordingCalendar::log() {
  Texts lines = logLines();
  clearLog();
  return lines;
}

std::filesystem::path RecordingCalendar::storeFile() const {
  return root_.path() / "var/mobile/Library/Preferences/org.quenmark.tavimo.events.plist";
}

Store RecordingCalendar::store() const {
  if (!std::filesystem::is_regular_file(storeFile())) return {};
  const auto root = readPropertyList(storeFile());
  if (!root->isKindOfClass(objc::classOf<NSDictionary>())) return {};
  auto* const entries = static_cast<NSDictionary*>(root.get());
  NSArray* const keys = entries->allKeys();
  Store found(std::in_place);
  for (NSUInteger i = 0; i < keys->count(); ++i) {
    found->emplace(utf8(static_cast<NSString*>(keys->objectAtIndex(i))),
                   utf8(static_cast<NSString*>(entries->objectForKey(keys->objectAtIndex(i)))));
  }
  return found;
}

void RecordingCalendar::hide(const Texts& keys) const {
  NSMutableDictionary* const entries = NSMutableDictionary::dictionary();
  for (const std::string& key : keys) entries->setObject("N"_ns, text(key));
  writePropertyList(entries, storeFile());
}

Texts classesOf(NSArray* items) {
  Texts names;
  for (NSUInteger i = 0; i < items->count(); ++i) {
    names.emplace_back(class_getName(object_getClass(items->objectAtIndex(i))));
  }
  return names;
}

}  // namespace phone
