#include "phone/app/calendar_choice.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <strings.h>

#include "phone/app/phone_files.h"
#include "phone/app/settings_value.h"
#include "phone/eventkit/eventkit.h"
#include "phone/eventkit/store_connection.h"
#include "platform/foundation/literal.h"

namespace phone {

namespace {

NSString* deselectedKey() { return "LastDeselectedCalendars"_ns; }

/// The Calendar app's list of switched-off calendars (borrowed from its preferences); none when there is
/// none.
NSMutableArray* deselected(NSDictionary* preferences) {
  NSObject* const list = preferences->objectForKey(deselectedKey());
  return list->isKindOfClass(objc::classNamed<"NSArray">()) ? static_cast<NSMutableArray*>(list) : nullptr;
}

bool contains(NSArray* list, const std::string& identifier) {
  return list != nullptr && list->indexOfObject(textObject(identifier)) != NSNotFound;
}

std::string colorText(std::uint32_t color) {
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "#%06X", color >> 8);
  return text.data();
}

}  // namespace

std::vector<CalendarChoice> calendarChoices() {
  std::vector<CalendarRecord> records;
  const bool read = withDatabase([&records](CalendarDatabase& database) { records = database.calendars(); });
  if (!read && !calendarStoreProblem().empty()) throw std::runtime_error(calendarStoreProblem());
  const auto preferences = readDictionary(kCalendarAppPreferences);
  const auto selection = readArray(kCalendarSelectionFile);
  std::vector<CalendarChoice> calendars;
  calendars.reserve(records.size());
  for (const CalendarRecord& record : records) {
    calendars.push_back({.identifier = record.identifier,
                         .title = record.title,
                         .color = colorText(record.color),
                         .shown = !contains(deselected(preferences.get()), record.identifier),
                         .selected = contains(selection.get(), record.identifier)});
  }
  return calendars;
}

const CalendarChoice& calendarMeant(const std::vector<CalendarChoice>& calendars, const std::string& meant) {
  const auto named = [&meant](const CalendarChoice& calendar) {
    return calendar.identifier == meant || strcasecmp(calendar.title.c_str(), meant.c_str()) == 0;
  };
  const auto found = std::find_if(calendars.begin(), calendars.end(), named);
  if (found == calendars.end()) {
    throw std::runtime_error("there is no calendar \"" + meant + "\"; \"phone calendars list\" shows all");
  }
  if (std::find_if(found + 1, calendars.end(), named) != calendars.end()) {
    throw std::runtime_error("several calendars are called \"" + meant +
                             "\"; name it by its identifier, which \"phone calendars "
                             "list\" shows");
  }
  return *found;
}

void setShown(const std::vector<std::string>& identifiers, bool shown) {
  const auto preferences = readDictionary(kCalendarAppPreferences);
  NSMutableArray* list = deselected(preferences.get());
  if (list == nullptr) list = NSMutableArray::array();
  for (const std::string& identifier : identifiers) {
    NSString* const text = textObject(identifier);
    list->removeObject(text);
    if (!shown) list->addObject(text);
  }
  preferences->setObject(list, deselectedKey());
  writeFile(kCalendarAppPreferences, preferences.get());
}

void setSelected(const std::vector<std::string>& identifiers) {
  auto* const list = NSMutableArray::array();
  for (const std::string& identifier : identifiers) list->addObject(textObject(identifier));
  writeFile(kCalendarSelectionFile, list);
}

bool selectionIsInEffect() {
  return settingValue(settingNamed("onlySelectedCalendars"), readDictionary(kSettingsFile).get()).inEffect ==
         "off";
}

}  // namespace phone
