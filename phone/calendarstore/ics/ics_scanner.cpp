#include "phone/calendarstore/ics/ics_scanner.h"

#include <algorithm>

#include "phone/calendarstore/ics/ics_text.h"
#include "phone/calendarstore/ics/utf8.h"

namespace phone {

namespace {

/// Plain texts, numbers and stamps, which need no parser.
constexpr std::string_view kEventTexts[] = {"DTSTAMP", "LAST-MODIFIED", "LOCATION", "SEQUENCE",
                                            "STATUS",  "SUMMARY",       "UID"};

constexpr std::string_view kZoneProperties[] = {"DTSTART", "RDATE",        "RRULE",      "TZID",
                                                "TZNAME",  "TZOFFSETFROM", "TZOFFSETTO", "X-LIC-LOCATION"};

/// A zone of more than this is no zone, but an attempt to keep the phone busy.
constexpr std::size_t kLargestZone = 64UL * 1024;

std::string upperCase(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(),
                 [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c; });
  return upper;
}

std::string trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(" \t") - first + 1));
}

/// Where the value begins, behind the first colon that stands in no quotes; npos if there is none. A quote
/// that is never closed does not count as one.
std::size_t valueStart(std::string_view line, std::size_t nameEnd) {
  std::size_t position = nameEnd;
  while (position < line.size() && line[position] != ':') {
    if (line[position] == '"') {
      const std::size_t closing = line.find('"', position + 1);
      if (closing != std::string_view::npos) position = closing;
    }
    ++position;
  }
  return position < line.size() ? position + 1 : std::string_view::npos;
}

/// A rule inside a zone is worked out for two centuries; one for every second would leave nothing for the
/// others.
bool isHarmlessZoneRule(const std::string& line) {
  return upperCase(line).find("FREQ=YEARLY") != std::string::npos;
}

/// The list's own copy of the name, or none.
template <std::size_t Size>
std::optional<std::string_view> findName(const std::string_view (&list)[Size], std::string_view name) {
  const auto* const found = std::find(std::begin(list), std::end(list), name);
  if (found == std::end(list)) return std::nullopt;
  return *found;
}

}  // namespace

std::size_t IcsComponent::lineOf(std::string_view property) const {
  const auto found = std::find_if(lines.begin(), lines.end(),
                                  [property](const auto& entry) { return entry.first == property; });
  return found == lines.end() ? line : found->second;
}

const std::string* IcsComponent::textOf(std::string_view property) const {
  const auto found = std::find_if(texts.begin(), texts.end(),
                                  [property](const auto& entry) { return entry.first == property; });
  return found == texts.end() ? nullptr : &found->second;
}

std::string IcsComponent::label() const {
  const std::string* const title = textOf("SUMMARY");
  if (kind != Kind::kEvent || title == nullptr) return {};
  return " (event \"" + unescapedText(*title) + "\")";
}

void IcsScanner::fail(const std::string& reason) const {
  throw IcsError(reader_.file(), reader_.number(), reason);
}

void IcsScanner::complain(const std::string& reason) const {
  if (!report_) fail(reason);
  const std::string label = keeping_ ? current_.label() : "";
  report_(IcsError(reader_.file(), reader_.number(), reason + label).what());
}

std::optional<IcsComponent> IcsScanner::next() {
  while (reader_.next()) {
    const std::string& line = reader_.line();
    const std::size_t nameEnd = std::min(line.find_first_of(":;"), line.size());
    const std::string name = upperCase(std::string_view(line).substr(0, nameEnd));
    const std::size_t value = valueStart(line, nameEnd);
    if (name == "BEGIN" && value != std::string::npos) {
      begin(upperCase(trimmed(std::string_view(line).substr(value))));
    } else if (calendarsBegun_ == 0) {
      fail("this is no calendar file: it does not begin with BEGIN:VCALENDAR");
    } else if (open_.empty()) {
      if (!toldOfTextBehind_) complain("there is text after the end of the calendar");
      toldOfTextBehind_ = true;
    } else if (value == std::string::npos || name.empty() || name.find(' ') != std::string::npos) {
      // It may be the rest of the line before. Of a text that does not matter; a lost date would.
      complain(std::string("the line is no property of the form NAME:VALUE") +
               (wasTiming_ ? "; it may be a part of the date before it" : ""));
      isBroken_ = isBroken_ || wasTiming_;
    } else if (name == "END") {
      if (end(upperCase(trimmed(std::string_view(line).substr(value))))) return std::move(current_);
    } else {
      takeProperty(name, value);
    }
  }
  if (calendarsBegun_ == 0) throw IcsError(reader_.file(), 0, "the file is empty");
  if (!open_.empty()) {
    complain("the file ends before the END of " + open_.back().name + ", which begins in line " +
             std::to_string(open_.back().line));
  }
  return std::nullopt;
}

void IcsScanner::endBefore(const std::string& line) {
  complain(line + " comes before the END of " + open_.back().name + ", which begins in line " +
           std::to_string(open_.back().line));
}

/// Ends what is still open within the component of that name; nothing if no such component is open.
void IcsScanner::endInsideOut(const std::string& name) {
  const auto named = std::find_if(open_.rbegin(), open_.rend(),
                                  [&name](const OpenComponent& component) { return component.name == name; });
  if (named == open_.rend()) return;
  open_.erase(named.base(), open_.end());
  keeping_ = keeping_ && open_.size() > 1;
}

void IcsScanner::begin(std::string name) {
  wasTiming_ = false;
  const bool isLikeEvent = name == "VEVENT" || name == "VTIMEZONE" || name == "VTODO" || name == "VJOURNAL";
  if (report_ && isLikeEvent && open_.size() > 1) {
    endBefore("BEGIN:" + name);
    endInsideOut("VCALENDAR");
  }
  if (open_.empty()) {
    if (name != "VCALENDAR") fail("this is no calendar file: it does not begin with BEGIN:VCALENDAR");
    ++calendarsBegun_;
    hasName_ = hasColor_ = false;
  } else if (open_.size() == 1 && (name == "VEVENT" || name == "VTIMEZONE")) {
    current_ = {.kind = name == "VEVENT" ? IcsComponent::Kind::kEvent : IcsComponent::Kind::kZone,
                .text = "BEGIN:" + name + "\r\n",
                .line = reader_.number()};
    keeping_ = true;
    isBroken_ = false;
  } else if (open_.size() == 1) {
    leftOut_.countComponent(name);
  } else if (keeping_ && current_.kind == IcsComponent::Kind::kEvent && open_.size() == 2) {
    leftOut_.countInEvent(name);
  } else if (keeping_ && current_.kind == IcsComponent::Kind::kZone && open_.size() == 2) {
    current_.text += "BEGIN:" + name + "\r\n";
  }
  open_.push_back({std::move(name), reader_.number()});
}

/// True when the component that is being kept, or a calendar, is complete.
bool IcsScanner::end(const std::string& name) {
  wasTiming_ = false;
  if (name != open_.back().name) {
    endBefore("END:" + name);
    endInsideOut(name);
    if (name != open_.back().name) return false;
  }
  open_.pop_back();
  if (open_.empty()) {
    current_ = {.kind = IcsComponent::Kind::kEnd, .line = reader_.number()};
    return true;
  }
  if (!keeping_) return false;
  const bool isZone = current_.kind == IcsComponent::Kind::kZone;
  if (open_.size() == 1 || (isZone && open_.size() == 2)) current_.text += "END:" + name + "\r\n";
  if (open_.size() > 1) return false;
  keeping_ = false;
  return !isBroken_;
}

void IcsScanner::takeProperty(std::string_view name, std::size_t valueStart) {
  const std::string& line = reader_.line();
  const std::string_view value = std::string_view(line).substr(valueStart);
  if (value.empty()) return;  // As good as no property.
  if (open_.size() == 1) takeCalendarProperty(name, value);
  wasTiming_ = false;
  if (!keeping_) return;
  if (current_.kind == IcsComponent::Kind::kEvent) {
    // What lies deeper belongs to an alarm.
    if (open_.size() != 2 || takeEventText(name, value)) return;
    const auto known = findName(kEventTiming, name);
    if (!known) {
      leftOut_.countInEvent(name);
      return;
    }
    wasTiming_ = true;
    current_.lines.emplace_back(*known, reader_.number());
  } else if (open_.size() > 3 || current_.text.size() + line.size() > kLargestZone ||
             !findName(kZoneProperties, name) || (name == "RRULE" && !isHarmlessZoneRule(line))) {
    return;
  }
  current_.text += toUtf8(line);
  current_.text += "\r\n";
}

void IcsScanner::takeCalendarProperty(std::string_view name, std::string_view value) {
  if (name == "X-WR-CALNAME" || (name == "NAME" && !hasName_)) {
    name_ = toUtf8(unescapedText(trimmed(value)));
    hasName_ = true;
    // The colour of an earlier calendar is not that of one with a name of its own.
    if (!hasColor_) color_.clear();
  }
  if (name == "X-APPLE-CALENDAR-COLOR" || (name == "COLOR" && !hasColor_)) {
    color_ = value;
    hasColor_ = true;
  }
}

bool IcsScanner::takeEventText(std::string_view name, std::string_view value) {
  const auto known = findName(kEventTexts, name);
  if (known) current_.texts.emplace_back(*known, toUtf8(value));
  return known.has_value();
}

}  // namespace phone
