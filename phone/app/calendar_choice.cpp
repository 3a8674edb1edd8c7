#include "phone/app/calendar_choice.h"

#include <array>
#include <cstdio>

#include "phone/app/phone_files.h"
#include "phone/app/settings_value.h"
#include "phone/eventkit/store_connection.h"
#include "phone/foundation/phone_root.h"
#include "platform/foundation/literal.h"

namespace phone {

namespace {

NSString* deselectedKey() { return "LastDeselectedCalendars"_ns; }

/// The files as the plug-in reads them: none for one that is missing or unreadable.
struct ChoiceFiles {
  NSDictionary* settings =
      NSDictionary::dictionaryWithContentsOfFile(textObject(std::string(contract::kSettingsFile)));
  NSDictionary* calendarApp = NSDictionary::dictionaryWithContentsOfFile(
      textObject(std::string(contract::kCalendarAppPreferencesFile)));
  NSArray* selection =
      NSArray::arrayWithContentsOfFile(textObject(std::string(contract::kCalendarSelectionFile)));
};

bool isOn(const char* setting, const ChoiceFiles& files) {
  return settingValue(settingNamed(setting), files.settings).inEffect == "on";
}

LockScreenSearch searchWith(const ChoiceFiles& files) {
  LockScreenSearch search{.bySelection = !isOn("onlySelectedCalendars", files)};
  if (!isOn("enabled", files)) {
    search.whyNothing = "the plug-in is off (\"phone settings set enabled on\" switches it on)";
  } else if (search.bySelection && files.selection->count() == 0) {
    search.whyNothing =
        "it goes by the selection, and none can be read (\"phone calendars select\" makes one)";
  } else if (!search.bySelection && files.calendarApp == nullptr) {
    search.whyNothing = "it goes by the Calendar app, whose preferences are missing or unreadable (" +
                        pathOnThisMachine(contract::kCalendarAppPreferencesFile).string() + ")";
  }
  return search;
}

bool contains(NSArray* list, const std::string& identifier) {
  return list != nullptr && list->indexOfObject(textObject(identifier)) != NSNotFound;
}

}  // namespace

std::string colorText(std::uint32_t color) {
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "#%06X", color >> 8);
  return text.data();
}

NSMutableArray* deselectedIn(NSDictionary* preferences) {
  NSObject* const list = preferences->objectForKey(deselectedKey());
  return list->isKindOfClass(objc::classOf<NSArray>()) ? static_cast<NSMutableArray*>(list) : nullptr;
}

std::vector<CalendarRecord> storedCalendars() {
  std::vector<CalendarRecord> records;
  readDatabase([&records](CalendarDatabase& database) { records = database.calendars(); });
  return records;
}

std::vector<CalendarChoice> calendarChoices() {
  const ChoiceFiles files;
  const LockScreenSearch search = searchWith(files);
  std::vector<CalendarChoice> calendars;
  for (const CalendarRecord& record : storedCalendars()) {
    CalendarChoice calendar{.identifier = record.identifier,
                            .title = record.title,
                            .color = colorText(record.color),
                            .shown = !contains(deselectedIn(files.calendarApp), record.identifier),
                            .selected = contains(files.selection, record.identifier)};
    calendar.searched =
        search.whyNothing.empty() && (search.bySelection ? calendar.selected : calendar.shown);
    calendars.push_back(std::move(calendar));
  }
  return calendars;
}

void setShown(const std::vector<std::string>& identifiers, bool shown) {
  const auto preferences = readDictionary(contract::kCalendarAppPreferencesFile);
  NSMutableArray* list = deselectedIn(preferences.get());
  if (list == nullptr) list = NSMutableArray::array();
  for (const std::string& identifier : identifiers) {
    NSString* const text = textObject(identifier);
    list->removeObject(text);
    if (!shown) list->addObject(text);
  }
  preferences->setObject(list, deselectedKey());
  writeFile(contract::kCalendarAppPreferencesFile, preferences.get());
}

void setSelected(const std::vector<std::string>& identifiers) {
  auto* const list = NSMutableArray::array();
  for (const std::string& identifier : identifiers) list->addObject(textObject(identifier));
  writeFile(contract::kCalendarSelectionFile, list);
}

LockScreenSearch lockScreenSearch() { return searchWith(ChoiceFiles()); }

}  // namespace phone
