// The event editor: where the own item stands, what it shows, and what is written when an editor closes.
#include "tests/tavimo/editor/recording_calendar.h"

namespace phone {
namespace {

constexpr double kIos7 = 1047.25;
constexpr double kIos8 = 1144.17;
constexpr const char* kOwn = "EKEventOrvItem";
const std::string kUrl = "x-apple-calevent://CAL/UID?o=415843200";
const std::string kKey = "x-apple-calevent://CAL/UID";
const Store kEmptyStore(std::in_place);

Store storeWith(const Texts& keys) {
  Store entries(std::in_place);
  for (const std::string& key : keys) entries->emplace(key, "N");
  return entries;
}

Texts fieldsWithOwnAt(std::size_t fields, std::size_t index) {
  Texts names(fields, "EKEventEditItem");
  names.insert(names.begin() + static_cast<std::ptrdiff_t>(index), kOwn);
  return names;
}

NSMutableArray* groupsOf(EKEventEditor* editor) {
  return objc::readIvar<NSMutableArray>(editor, "_orderedEditItems");
}

NSArray* groupAt(EKEventEditor* editor, NSUInteger index) {
  return static_cast<NSArray*>(groupsOf(editor)->objectAtIndex(index));
}

class EditList : public testing::TestWithParam<double> {};

TEST_P(EditList, HasTheItemAtTheReleasesPlace) {
  RecordingCalendar phone({.foundationVersion = GetParam()});
  const bool ios8 = GetParam() >= 1048;
  const std::size_t place = ios8 ? 8 : 7;
  const auto event = phone.event(kUrl);
  const auto editor = phone.editor(event.get());
  NSArray* const items = RecordingCalendar::editItems(editor.get());
  EXPECT_EQ(classesOf(items), fieldsWithOwnAt(12, place));
  EXPECT_EQ(phone.calls(), Texts{"setCalendarItem:store: event store"});
  EXPECT_EQ(objc::readIvar<NSArray>(editor.get(), "_editItems"), items) << "the editor keeps the list";
  EXPECT_EQ(groupAt(editor.get(), 3)->count(), ios8 ? 3U : 2U);
  if (ios8) {
    EXPECT_EQ(groupAt(editor.get(), 3)->objectAtIndex(2), items->objectAtIndex(8));
  }
  EXPECT_EQ(groupAt(editor.get(), 2)->count(), 2U);

  NSObject* const item = RecordingCalendar::ownItem(editor.get());
  EXPECT_EQ(RecordingCalendar::editItems(editor.get())->count(), 13U);
  EXPECT_EQ(RecordingCalendar::ownItem(editor.get()), item) << "a second call makes no second item";
  EXPECT_EQ(groupAt(editor.get(), 3)->count(), ios8 ? 3U : 2U);

  // Lists that end before the place get the item at their end.
  for (const std::size_t fields : {std::size_t{0}, std::size_t{1}, place - 1, place, place + 1}) {
    const auto another = phone.editor(event.get(), {.fields = fields});
    EXPECT_EQ(classesOf(RecordingCalendar::editItems(another.get())),
              fieldsWithOwnAt(fields, std::min(fields, place)));
  }
  EXPECT_EQ(RecordingCalendar::log(), Texts{});
}

INSTANTIATE_TEST_SUITE_P(Releases, EditList, testing::Values(kIos7, 1047.99, 1048.0, 1141.1, kIos8, 1280.25));

TEST(EditListGroups, ThatAreOfAnotherFormAreLeftAlone) {
  RecordingCalendar phone;
  const auto event = phone.event(kUrl);
  for (const std::vector<std::size_t>& lengths : {std::vector<std::size_t>{}, {4, 4, 4}, {0, 0, 0, 0}}) {
    const auto editor = phone.editor(event.get(), {.groups = lengths});
    RecordingCalendar::editItems(editor.get());
    ASSERT_EQ(groupsOf(editor.get())->count(), lengths.size());
    for (NSUInteger i = 0; i < lengths.size(); ++i) {
      EXPECT_EQ(groupAt(editor.get(), i)->count(), lengths[i] + (i == 3 ? 1 : 0));
    }
  }
  NSMutableArray* const words = NSMutableArray::array();
  for (int i = 0; i < 4; ++i) words->addObject("no group"_ns);
  NSArray* const immutable =
      objc::sendToClass<NSArray, "arrayWithArray:", NSArray*>(static_cast<NSArray*>(words));
  for (NSObject* const odd : {static_cast<NSObject*>(words), static_cast<NSObject*>(immutable),
                              static_cast<NSObject*>("no array"_ns), static_cast<NSObject*>(nullptr)}) {
    const auto editor = phone.editor(event.get(), {.oddGroups = odd});
    EXPECT_EQ(classesOf(RecordingCalendar::editItems(editor.get())), fieldsWithOwnAt(12, 8));
    EXPECT_EQ(groupsOf(editor.get()), odd);
  }
  for (NSUInteger i = 0; i < 4; ++i) EXPECT_EQ(words->objectAtIndex(i), "no group"_ns);
}

TEST(EditListGroups, MayBeMissing) {
  RecordingCalendar phone({.editorHasGroups = false});
  const auto event = phone.event(kUrl);
  const auto editor = phone.editor(event.get());
  EXPECT_EQ(classesOf(RecordingCalendar::editItems(editor.get())), fieldsWithOwnAt(12, 8));
}

TEST(EditList, OfAnEditorWithoutTheVariableStaysTheHosts) {
  RecordingCalendar phone({.editorHasEditItems = false});
  const auto event = phone.event(kUrl);
  const auto editor = phone.editor(event.get());
  EXPECT_EQ(classesOf(RecordingCalendar::editItems(editor.get())), Texts(12, "EKEventEditItem"));
  RecordingCalendar::close(editor.get());
  EXPECT_EQ(phone.calls(), Texts{"complete 1 animated"});
  EXPECT_EQ(phone.store(), Store()) << "an editor without item has nothing to write";
}

TEST(EditList, OfAPhoneWithoutEditItemsIsTheHosts) {
  RecordingCalendar phone({.editItemClass = "EKEventEditRow"});
  const auto event = phone.event(kUrl);
  const auto editor = phone.editor(event.get());
  EXPECT_EQ(classesOf(RecordingCalendar::editItems(editor.get())), Texts(12, "EKEventEditRow"));
}

TEST(EditList, IsChangedAtItsFirstBuildOnly) {
  RecordingCalendar phone;
  const auto event = phone.event(kUrl);
  const auto editor = phone.editor(event.get(), {.fields = std::string::npos});
  EXPECT_EQ(RecordingCalendar::editItems(editor.get()), nullptr) << "the host has no list";
  NSMutableArray* const built = NSMutableArray::array();
  built->addObject("a field"_ns);
  objc::writeIvar<NSArray>(editor.get(), "_editItems", built);
  EXPECT_EQ(RecordingCalendar::editItems(editor.get()), built);
  EXPECT_EQ(built->count(), 1U);
}

TEST(EditorItem, ShowsTheStoreAndNewEventsAreShown) {
  RecordingCalendar phone;
  const auto hidden = phone.event(kUrl);
  phone.hide({kKey});
  const struct {
    const char* parent;
    const char* grandparent;
    bool shown;
  } editors[] = {
      {"EKEventEditViewController", "UINavigationController", false},
      {"EKEventEditViewController", "AddEventViewController", true},
      {"AddEventViewController", "UINavigationController", false},
      {"EKEventEditViewController", "AddEventViewControllerOfAnotherName", false},
  };
  for (const auto& [parent, grandparent, shown] : editors) {
    const auto editor = phone.editor(hidden.get(), {.parentClass = parent, .grandparentClass = grandparent});
    EXPECT_EQ(RecordingCalendar::isShown(editor.get()), shown) << parent << " in " << grandparent;
  }
  const auto urlless = phone.event({});
  EXPECT_TRUE(RecordingCalendar::isShown(phone.openEditor(urlless.get()).get()));
  RecordingCalendar::setTextlessUrl(urlless.get());
  EXPECT_TRUE(RecordingCalendar::isShown(phone.openEditor(urlless.get()).get()));
  EXPECT_TRUE(RecordingCalendar::isShown(phone.openEditor(nullptr).get()));
  const auto other = phone.event("x-apple-calevent://CAL/UID2?o=1");
  EXPECT_TRUE(RecordingCalendar::isShown(phone.openEditor(other.get()).get()));
  EXPECT_EQ(phone.store(), storeWith({kKey})) << "opening writes nothing";
}

TEST(ClosingEditor, WritesItsChoiceBeforeTheHostActsHoweverItCloses) {
  RecordingCalendar phone;
  const auto event = phone.event(kUrl);
  Store storeAtCompletion;
  phone.whileCompleting() = [&] { storeAtCompletion = phone.store(); };
  for (const NSInteger action : {0, 1, 2, 99}) {
    for (const bool shown : {false, true}) {
      const auto editor = phone.openEditor(event.get());
      RecordingCalendar::choose(editor.get(), shown);
      const Store before = phone.store();
      RecordingCalendar::close(editor.get(), action, shown);
      EXPECT_EQ(phone.calls(), Texts{"complete " + std::to_string(action) + (shown ? " animated" : "")});
      EXPECT_EQ(storeAtCompletion, shown ? kEmptyStore : storeWith({kKey}));
      EXPECT_EQ(phone.store(), storeAtCompletion);
      EXPECT_NE(before, storeAtCompletion) << "flipping alone had written nothing";
    }
  }
  EXPECT_EQ(RecordingCalendar::log(), Texts{});
}

TEST(ClosingEditor, WritesForItsOwnEventWhateverOthersAreOpen) {
  RecordingCalendar phone;
  phone.hide({"b://", "kept"});
  const auto a = phone.event("a://?o=1");
  const auto b = phone.event("b://?o=1");
  const auto c = phone.event("c://?o=1");
  const auto editorA = phone.openEditor(a.get());
  const auto editorB = phone.openEditor(b.get());
  const auto editorC = phone.openEditor(c.get());
  RecordingCalendar::choose(editorA.get(), false);
  RecordingCalendar::close(editorB.get());
  EXPECT_EQ(phone.store(), storeWith({"b://", "kept"}));
  RecordingCalendar::close(editorA.get());
  EXPECT_EQ(phone.store(), storeWith({"a://", "b://", "kept"}));
  RecordingCalendar::choose(editorB.get(), true);
  RecordingCalendar::close(editorC.get(), 0);
  RecordingCalendar::close(editorB.get(), 0);
  EXPECT_EQ(phone.store(), storeWith({"a://", "kept"}));
}

TEST(ClosingEditor, OfANewEventWritesOnceTheHostHasSavedIt) {
  RecordingCalendar phone;
  const auto cancelled = phone.event({});
  auto editor = phone.openEditor(cancelled.get());
  RecordingCalendar::choose(editor.get(), false);
  RecordingCalendar::close(editor.get(), 0);
  EXPECT_EQ(phone.store(), Store()) << "an event that never was saved has no entry";

  const auto saved = phone.event({});
  editor = phone.openEditor(saved.get());
  RecordingCalendar::choose(editor.get(), false);
  phone.whileCompleting() = [&] {
    EXPECT_EQ(phone.store(), Store());
    RecordingCalendar::setUrlText(saved.get(), kUrl);
  };
  phone.calls();
  RecordingCalendar::close(editor.get(), 1);
  EXPECT_EQ(phone.calls(), Texts{"complete 1 animated"}) << "the host completes once";
  EXPECT_EQ(phone.store(), storeWith({kKey}));

  RecordingCalendar::setTextlessUrl(saved.get());
  editor = phone.openEditor(saved.get());
  phone.whileCompleting() = [] {};
  RecordingCalendar::close(editor.get(), 1);
  EXPECT_EQ(phone.store(), storeWith({kKey}));
}

TEST(ClosingEditor, WritesUnderTheKeyFromBeforeWhenTheHostChangesIt) {
  RecordingCalendar phone;
  const auto event = phone.event(kUrl);
  auto editor = phone.openEditor(event.get());
  RecordingCalendar::choose(editor.get(), false);
  phone.whileCompleting() = [&] {
    RecordingCalendar::setUrlText(event.get(), "moved://?o=1");
    // The editor may be gone when the host returns; nothing may be read from it then.
    const AutoreleasePool pool;
    editor = {};
  };
  RecordingCalendar::close(editor.get());
  EXPECT_EQ(phone.store(), storeWith({kKey}));
}

TEST(ClosingEditor, ThatNeverBuiltItsListWritesNothing) {
  RecordingCalendar phone;
  phone.hide({kKey});
  const auto event = phone.event(kUrl);
  const auto another = phone.openEditor(event.get());
  const auto editor = phone.editor(event.get());
  RecordingCalendar::choose(another.get(), true);
  RecordingCalendar::close(editor.get());
  EXPECT_EQ(phone.store(), storeWith({kKey}));
}

}  // namespace
}  // namespace phone
