#include "phone/calendarui/event_rows.h"

#include "phone/calendarui/event_text.h"
#include "platform/eventkit/ek_calendar.h"
#include "platform/eventkit/ek_event.h"
#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_string.h"

namespace phone {

namespace {

std::string utf8(NSString* text) {
  const char* const characters = text->UTF8String();
  return characters == nullptr ? "" : characters;
}

std::vector<RowText> fieldOrName(std::string value, const char* name) {
  if (value.empty()) return {{name, {}, RowStyle::kEmptyField}};
  return {{std::move(value)}};
}

}  // namespace

std::vector<RowText> titleField(EKEvent* event) { return fieldOrName(utf8(event->title()), "Title"); }

std::vector<RowText> locationField(EKEvent* event) {
  return fieldOrName(utf8(event->location()), "Location");
}

std::vector<RowText> dateFields(EKEvent* event) {
  const bool allDay = event->isAllDay();
  return {{"All-day"},
          {"Starts", momentText(event->startDate(), allDay)},
          {"Ends", momentText(event->endDate(), allDay)}};
}

// The calendar database keeps no more than what stands above, a repetition and a calendar. The other fields
// are there, with the value of an event that nobody gave any.
std::vector<RowText> travelTimeField(EKEvent*) { return {{"Travel Time", "None"}}; }

std::vector<RowText> urlField(EKEvent*) { return fieldOrName({}, "URL"); }

std::vector<RowText> notesField(EKEvent*) { return fieldOrName({}, "Notes"); }

std::vector<RowText> recurrenceRow(EKEvent* event) {
  return {{"Repeat", event->hasRecurrenceRules() ? "Yes" : "Never"}};
}

std::vector<RowText> calendarRow(EKEvent* event) { return {{"Calendar", utf8(event->calendar()->title())}}; }

std::vector<RowText> attendeesRow(EKEvent*) { return {{"Invitees", "None"}}; }

std::vector<RowText> alarmRow(EKEvent*) { return {{"Alert", "None"}}; }

std::vector<RowText> availabilityRow(EKEvent*) { return {{"Show As", "Busy"}}; }

std::vector<RowText> headRows(EKEvent* event) {
  std::vector<RowText> rows = {{utf8(event->title()), {}, RowStyle::kHeadline}};
  if (const std::string place = utf8(event->location()); !place.empty()) {
    rows.push_back({place, {}, RowStyle::kLine});
  }
  for (const std::string& line : spanLines(event)) rows.push_back({line, {}, RowStyle::kLine});
  if (event->hasRecurrenceRules()) rows.push_back({"repeats", {}, RowStyle::kLine});
  return rows;
}

std::vector<RowText> noRows(EKEvent*) { return {}; }

}  // namespace phone
