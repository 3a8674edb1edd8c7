// What the rows of the calendar's screens say about an event. Editor and event view share these texts.
#pragma once

#include <string>
#include <vector>

class EKEvent;

namespace phone {

enum class RowStyle {
  /// A row like every other in a table.
  kField,
  /// The name of a field that is empty.
  kEmptyField,
  kHeadline,
  /// A line of text below a headline.
  kLine,
};

/// One row: text at the left, value at the right.
struct RowText {
  std::string text;
  std::string detail = {};
  RowStyle style = RowStyle::kField;
};

/// Makes the rows for one aspect of an event (never none); no rows when there is nothing to say.
using EventRows = std::vector<RowText> (*)(EKEvent* event);

// The editor's fields; an empty one shows its name.
std::vector<RowText> titleField(EKEvent* event);
std::vector<RowText> locationField(EKEvent* event);
std::vector<RowText> dateFields(EKEvent* event);
std::vector<RowText> travelTimeField(EKEvent* event);
std::vector<RowText> urlField(EKEvent* event);
std::vector<RowText> notesField(EKEvent* event);

// What both screens show alike.
std::vector<RowText> recurrenceRow(EKEvent* event);
std::vector<RowText> calendarRow(EKEvent* event);
std::vector<RowText> attendeesRow(EKEvent* event);
std::vector<RowText> alarmRow(EKEvent* event);
std::vector<RowText> availabilityRow(EKEvent* event);

// The event view's.
std::vector<RowText> headRows(EKEvent* event);
/// Of an aspect that the view shows only when there is something to show.
std::vector<RowText> noRows(EKEvent* event);

}  // namespace phone
