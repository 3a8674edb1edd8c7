// The calendar's screens, opened, flipped and left in any order, over events with identifiers and a
// hidden-event store of any content. What holds at every step: the switch on screen says what the store says
// of the event on screen, and what the user did there changes that event's entry and no other.
#include <set>

#include "contract/files.h"
#include "fuzz/support/sections.h"
#include "fuzz/support/target.h"
#include "phone/calendarstore/database/event_table.h"
#include "phone/calendarstore/database/identifiers.h"
#include "phone/calendarui/calendar_process.h"
#include "phone/calendarui/ek_event_editor.h"
#include "phone/calendarui/ek_event_view_controller.h"
#include "phone/eventkit/store_connection.h"
#include "phone/foundation/phone_root.h"
#include "platform/eventkit/ek_event.h"
#include "platform/foundation/ns_array.h"
#include "platform/foundation/ns_dictionary.h"
#include "platform/foundation/ns_url.h"
#include "tests/foundation/temporary_folder.h"
#include "tests/support/built.h"
#include "tests/tavimo/support/objects.h"

namespace phone::fuzz {

namespace {

using Keys = std::set<std::string>;

constexpr const char* kRow = "Show on Lockscreen";
constexpr double kNow = utc(2014, 3, 7, 10);
constexpr std::size_t kMaxEvents = 4;
constexpr std::size_t kMaxSteps = 64;

/// What hides the event; empty for one that was never saved.
std::string keyOf(EKCalendarItem* event) {
  NSURL* const address = event->externalURI();
  if (address == nullptr) return "";
  const std::string whole = utf8(address->absoluteString());
  return whole.substr(0, whole.find("?o="));
}

class ScreensTarget : public Target {
 public:
  ScreensTarget()
      : calendar_(CalendarProcess::boot({.root = root_.path(), .now = kNow, .timeZone = "Europe/Berlin"},
                                        pluginLibrary())) {
    std::filesystem::create_directories(store().parent_path());
  }

  void tryInput(std::string_view bytes) override {
    const Sections input = sectionsOf(bytes);
    addEvents(linesOf(section(input, "uids").value_or("one\ntwo")));
    writeStore(section(input, "store"));
    const std::string steps = section(input, "steps").value_or("");
    for (const char step : steps.substr(0, kMaxSteps)) {
      editors_.empty() ? takeStep(step) : takeStepInEditor(step);
    }
    while (!editors_.empty()) closeEditor(EditAction::kCancelled);
    while (calendar_.frontView() != nullptr) calendar_.goBack();
  }

 private:
  static std::filesystem::path store() { return pathOnThisMachine(contract::kHiddenEventsFile); }

  void addEvents(const std::vector<std::string>& uids) {
    CalendarDatabase& database = sharedDatabaseForWriting();
    database.connection().execute(
        "DELETE FROM event; DELETE FROM occurrence; DELETE FROM series; DELETE FROM event_date");
    const CalendarRecord calendar = database.calendarNamed("Work", std::nullopt);
    events_.clear();
    for (std::size_t i = 0; i < std::min(uids.size(), kMaxEvents); ++i) {
      const auto start = static_cast<Seconds>(kNow) + static_cast<Seconds>(i) * 3600;
      insertEvent(
          database,
          {.calendar = calendar.id, .uid = uids[i], .title = uids[i], .start = start, .end = start + 1800});
      events_.push_back(eventIdentifier(calendar.identifier, uids[i], std::nullopt));
    }
  }

  /// A store that Foundation itself cannot write again is none that a flip could change.
  void writeStore(const std::optional<std::string>& content) const {
    std::filesystem::remove(store());
    if (!content) return;
    writeBytes(store(), *content);
    NSDictionary* const entries = storedEntries();
    if (entries != nullptr && !entries->writeToFile(text(store().string()), true)) {
      std::filesystem::remove(store());
    }
  }

  NSDictionary* storedEntries() const {
    return NSDictionary::dictionaryWithContentsOfFile(text(store().string()));
  }

  Keys hiddenKeys() const {
    Keys keys;
    NSArray* const all = storedEntries()->allKeys();
    for (NSUInteger i = 0; i < all->count(); ++i)
      keys.insert(utf8(static_cast<NSString*>(all->objectAtIndex(i))));
    return keys;
  }

  /// What the switch in the screen's row says. Asked at every step, so the screen is not laid out for it.
  template <typename Screen>
  static bool switchOn(Screen* screen) {
    for (const auto& group : tableOf(screen).groups) {
      for (const auto& cell : group) {
        UISwitch* const toggle = switchIn(cell.get());
        if (toggle != nullptr && rowOf(cell.get()).text == kRow) return toggle->isOn();
      }
    }
    require(false, "every screen of an event has the row");
    return false;
  }

  void takeStep(char step) {
    const Keys before = hiddenKeys();
    EKEventViewController* const view = calendar_.frontView();
    if (step >= '0' && static_cast<std::size_t>(step - '0') < events_.size()) {
      openEvent(events_[static_cast<std::size_t>(step - '0')]);
    } else if (step == 'b') {
      calendar_.goBack();
    } else if (step == 'f' && view != nullptr) {
      flip(view, before);
      return;
    } else if (step == 'e' && view != nullptr) {
      openEditor(calendar_.editFrontEvent());
    } else if (step == 'n') {
      openEditor(calendar_.newEvent());
      require(switchOn(editors_.back()), "a new event is shown");
    }
    require(hiddenKeys() == before, "looking at an event changes no entry");
    checkView();
  }

  void openEvent(const std::string& identifier) {
    try {
      calendar_.openEvent(identifier);
    } catch (const std::runtime_error&) {
      // It was deleted in an editor.
    }
  }

  void flip(EKEventViewController* view, const Keys& before) {
    const bool shown = !switchOn(view);
    calendar_.setSwitch(view, kRow, shown);
    expectEntry(before, keyOf(view->event()), shown);
    checkView();
  }

  void openEditor(EKEventEditor* editor) {
    editors_.push_back(editor);
    const std::string key = keyOf(editor->calendarItem());
    if (!key.empty()) {
      require(switchOn(editor) == !hiddenKeys().contains(key),
              "an editor's switch says what the store says of " + key);
    }
  }

  void takeStepInEditor(char step) {
    switch (step) {
      case 't':
        calendar_.setSwitch(editors_.back(), kRow, !switchOn(editors_.back()));
        break;
      case 'n':
        openEditor(calendar_.newEvent());
        break;
      case 's':
        closeEditor(EditAction::kSaved);
        break;
      case 'c':
        closeEditor(EditAction::kCancelled);
        break;
      case 'd':
        closeEditor(EditAction::kDeleted);
        break;
      default:
        break;
    }
  }

  void closeEditor(EditAction action) {
    EKEventEditor* const editor = editors_.back();
    const Keys before = hiddenKeys();
    const bool shown = switchOn(editor);
    const auto event = objc::Owned<EKCalendarItem>::retain(editor->calendarItem());
    const std::string keyBefore = keyOf(event.get());
    editors_.pop_back();
    if (!calendar_.close(editor, action))
      require(calendar_.close(editor, EditAction::kCancelled), "an editor can be left");
    expectEntry(before, keyBefore.empty() ? keyOf(event.get()) : keyBefore, shown);
    if (editors_.empty()) checkView();
  }

  void expectEntry(Keys expected, const std::string& key, bool shown) const {
    if (shown) {
      expected.erase(key);
    } else if (!key.empty()) {
      expected.insert(key);
    }
    require(hiddenKeys() == expected, "a choice changes the entry of its own event: " + key);
  }

  void checkView() const {
    EKEventViewController* const view = calendar_.frontView();
    if (view == nullptr || !editors_.empty()) return;
    const std::string key = keyOf(view->event());
    require(switchOn(view) == !hiddenKeys().contains(key), "the switch says what the store says of " + key);
  }

  TemporaryFolder root_;
  CalendarProcess calendar_;
  std::vector<std::string> events_;
  /// The open ones, the one in use last. Borrowed.
  std::vector<EKEventEditor*> editors_;
};

}  // namespace

std::unique_ptr<Target> makeTarget() { return std::make_unique<ScreensTarget>(); }

}  // namespace phone::fuzz
