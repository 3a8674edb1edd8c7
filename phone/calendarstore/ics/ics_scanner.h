// Takes a calendar file apart into its events and time zones, one at a time, without building the whole
// calendar in memory. Of each it keeps the lines that the store has a use for.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "phone/calendarstore/ics/ics_left_out.h"
#include "phone/calendarstore/ics/ics_reader.h"

namespace phone {

/// What libical is to read of an event. It is a small part of a file: descriptions, attendees, attachments
/// and alarms would be parsed for nothing.
inline constexpr std::string_view kEventTiming[] = {"DTEND",  "DTSTART", "DURATION", "EXDATE",
                                                    "EXRULE", "RDATE",   "RRULE",    "RECURRENCE-ID"};

struct IcsComponent {
  enum class Kind {
    kEvent,
    kZone,
    kEnd  ///< of a calendar; without content
  };

  Kind kind = Kind::kEvent;
  /// From BEGIN to END, in UTF-8, lines unfolded: a zone as a whole, of an event what says when it takes
  /// place.
  std::string text = {};
  /// The other properties of an event that have a use, as written, in UTF-8.
  std::vector<std::pair<std::string_view, std::string>> texts = {};
  /// Number of the line with BEGIN.
  std::size_t line = 0;
  /// Where the properties in `text` stand, of an event.
  std::vector<std::pair<std::string_view, std::size_t>> lines = {};

  /// The line of the first property of that name; that of BEGIN if there is none.
  std::size_t lineOf(std::string_view property) const;
  /// The value of the first property of that name among `texts`; nil if there is none.
  const std::string* textOf(std::string_view property) const;
  /// What people call the event: " (event \"Dentist\")"; empty if it says nothing of the kind.
  std::string label() const;
};

class IcsScanner {
 public:
  using ReportProblem = std::function<void(const std::string&)>;

  /// With `report`, what is broken is left out and reported as "file:line: reason" instead of thrown, as long
  /// as there is something to go on with.
  explicit IcsScanner(const std::filesystem::path& file, ReportProblem report = {})
      : reader_(file), report_(std::move(report)) {}

  /// Goes to the next event, time zone or end of a calendar; none at the end of the file. Throws IcsError
  /// when the file is no calendar, or is broken.
  std::optional<IcsComponent> next();

  /// How many calendars of the file have begun: most files hold one, an export of several holds them all.
  std::size_t calendarsBegun() const { return calendarsBegun_; }
  /// What the calendar says of itself before its first event or zone; if nothing, what an earlier one of the
  /// file said; empty if none did. Known after next().
  const std::string& calendarName() const { return name_; }
  const std::string& calendarColor() const { return color_; }

  /// What was read so far and is in no component.
  const IcsLeftOut& leftOut() const { return leftOut_; }

  const std::filesystem::path& file() const { return reader_.file(); }
  std::uint64_t bytesRead() const { return reader_.bytesRead(); }

 private:
  struct OpenComponent {
    std::string name;
    std::size_t line;
  };

  void begin(std::string name);
  bool end(const std::string& name);
  void takeProperty(std::string_view name, std::size_t valueStart);
  void takeCalendarProperty(std::string_view name, std::string_view value);
  bool takeEventText(std::string_view name, std::string_view value);
  void endInsideOut(const std::string& name);
  void endBefore(const std::string& line);
  [[noreturn]] void fail(const std::string& reason) const;
  void complain(const std::string& reason) const;

  IcsReader reader_;
  ReportProblem report_;
  IcsLeftOut leftOut_;
  std::vector<OpenComponent> open_;
  IcsComponent current_;
  bool keeping_ = false;
  std::size_t calendarsBegun_ = 0;
  // What is being kept says when it takes place, in lines of which one may be lost.
  bool isBroken_ = false;
  bool wasTiming_ = false;
  bool toldOfTextBehind_ = false;
  std::string name_;
  std::string color_;
  // Whether the present calendar itself said so.
  bool hasName_ = false;
  bool hasColor_ = false;
};

}  // namespace phone
