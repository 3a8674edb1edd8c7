#include "phone/calendarstore/ics/ics_event.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <limits>
#include <string_view>

#include "phone/calendarstore/ics/ics_text.h"
#include "phone/calendarstore/memory_check.h"
#include "phone/calendarstore/recurrence/foreign_rule.h"
#include "phone/calendarstore/recurrence/ical_owned.h"
#include "phone/calendarstore/recurrence/recurrence_rule.h"

namespace phone {

namespace {

/// A time of the file before it is known how the event counts: a wall time, and the zone that it is of.
struct IcsTime {
  Seconds wall = 0;
  bool isDate = false;
  const EventZone* zone = nullptr;

  Seconds stored() const { return zone == nullptr ? wall : zone->toInstant(wall); }
};

const EventZone& universalTime() {
  static const EventZone utc = EventZone::utc();
  return utc;
}

/// A name for an event that has none, the same for the same content.
std::string contentUid(const IcsComponent& component) {
  std::uint64_t hash = 0xcbf29ce484222325ULL;
  const auto add = [&hash](std::string_view text) {
    for (const unsigned char byte : text) hash = (hash ^ byte) * 0x100000001b3ULL;
  };
  add(component.text);
  for (const std::string_view name : {"SUMMARY", "LOCATION"}) {
    if (const std::string* const text = component.textOf(name)) add(*text);
  }
  char uid[32];
  std::snprintf(uid, sizeof uid, "no-uid-%016llx", static_cast<unsigned long long>(hash));
  return uid;
}

std::string textOf(const IcsComponent& component, std::string_view name) {
  const std::string* const value = component.textOf(name);
  return value == nullptr ? "" : unescapedText(*value);
}

std::int64_t number(const std::string* value) {
  std::int64_t result = 0;
  if (value != nullptr) std::from_chars(value->data(), value->data() + value->size(), result);
  return std::clamp<std::int64_t>(result, 0, std::numeric_limits<int>::max());
}

/// A stamp in universal time; 0 if there is none, or none that makes sense.
Seconds stamp(const std::string* value) {
  if (value == nullptr) return 0;
  const icaltimetype time = icaltime_from_string(value->c_str());
  return icaltime_is_null_time(time) != 0 || icaltime_is_valid_time(time) == 0 ? 0 : wallSeconds(time);
}

class IcsEventReader {
 public:
  IcsEventReader(const std::filesystem::path& file, const IcsComponent& component, IcsZones& zones,
                 WalkBudget& toEnds)
      : file_(file), component_(component), zones_(zones), toEnds_(toEnds) {
    parsed_.reset(icalparser_parse_string(component.text.c_str()));
    if (parsed_ == nullptr) fail("BEGIN", "the event cannot be read");
  }

  IcsEvent read() {
    refuseBrokenTimes();
    EventRecord& event = event_.record;
    event.isImported = true;
    readTexts(event);
    readTimes(event);
    readRepetitions(event);
    return std::move(event_);
  }

 private:
  [[noreturn]] void fail(std::string_view property, const std::string& reason) const {
    throw IcsError(file_, component_.lineOf(property), reason);
  }

  icalproperty* first(icalproperty_kind kind) const {
    return icalcomponent_get_first_property(parsed_.get(), kind);
  }

  template <typename Use>
  void forEach(icalproperty_kind kind, Use use) const {
    forEachProperty(parsed_.get(), kind, use);
  }

  /// libical leaves a note in the place of each value that it cannot read.
  void refuseBrokenTimes() const {
    forEach(ICAL_XLICERROR_PROPERTY, [this](icalproperty* note) {
      const std::string_view text = icalproperty_get_xlicerror(note);
      for (const std::string_view name : kEventTiming) {
        const std::string mention = "value in " + std::string(name) + " property";
        if (text.find(mention) == std::string_view::npos) continue;
        const std::size_t colon = text.rfind(": ");
        fail(name, std::string(name) + " cannot be read" +
                       (colon == std::string_view::npos ? "" : ": " + std::string(text.substr(colon + 2))));
      }
    });
  }

  void readTexts(EventRecord& event) const {
    event.uid = textOf(component_, "UID");
    if (event.uid.empty()) event.uid = contentUid(component_);
    event.title = textOf(component_, "SUMMARY");
    if (std::string location = textOf(component_, "LOCATION"); !location.empty()) {
      event.location = std::move(location);
    }
    const std::string* const status = component_.textOf("STATUS");
    event.isCancelled = status != nullptr && *status == "CANCELLED";
    event.revision = number(component_.textOf("SEQUENCE"));
    // A program that does not say when it changed the event says at least when it wrote it down.
    event.modified = stamp(component_.textOf("LAST-MODIFIED"));
    if (event.modified == 0) event.modified = stamp(component_.textOf("DTSTAMP"));
  }

  IcsTime timeFrom(icalproperty* property, const icaltimetype& time, const char* name) {
    icaltimetype adjusted = time;
    // A leap second is written as the 60th; clocks here have none.
    adjusted.second = std::min(adjusted.second, 59);
    if (time.year < kFirstYear || time.year > kLastYear || time.month < 1 || time.month > 12 ||
        time.day < 1 || time.day > icaltime_days_in_month(time.month, time.year) || time.hour > 23 ||
        time.minute > 59 || time.second > 60) {
      fail(name, std::string(name) + " is no date that exists: " + icaltime_as_ical_string(time));
    }
    return {wallSeconds(adjusted), time.is_date != 0, time.is_date != 0 ? nullptr : zoneOf(property, time)};
  }

  IcsTime timeOf(icalproperty* property, const char* name) {
    return timeFrom(property, icalvalue_get_datetimedate(icalproperty_get_value(property)), name);
  }

  const EventZone* zoneOf(icalproperty* property, const icaltimetype& time) {
    if (icaltime_is_utc(time) != 0) return &universalTime();
    icalparameter* const parameter = icalproperty_get_first_parameter(property, ICAL_TZID_PARAMETER);
    const char* const name = parameter == nullptr ? nullptr : icalparameter_get_tzid(parameter);
    if (name == nullptr || *name == '\0') return nullptr;
    const EventZone* const zone = zones_.find(name);
    if (zone == nullptr) event_.unknownZone = name;
    return zone;
  }

  void readTimes(EventRecord& event) {
    icalproperty* const property = first(ICAL_DTSTART_PROPERTY);
    if (property == nullptr) fail("BEGIN", "the event has no start (DTSTART)");
    const IcsTime start = timeOf(property, "DTSTART");
    event.isAllDay = start.isDate;
    if (start.zone != nullptr) event.zone = *start.zone;
    event.start = start.stored();
    event.end = std::max(readEnd(event, start), event.start);
    if (event.isAllDay) {
      // Whole days, and at least one.
      const Seconds days = std::max<Seconds>((event.duration() + kSecondsPerDay - 1) / kSecondsPerDay, 1);
      event.end = event.start + days * kSecondsPerDay;
    }
    event.end = cutOff(event, event.start, event.end);
  }

  /// The end of an event that may be said to last longer than there is time.
  static Seconds cutOff(const EventRecord& event, Seconds start, Seconds end) {
    const Seconds last = event.toStored(kLastWallTime + (event.isAllDay ? 1 : 0));
    return std::max(std::min(end, last), start);
  }

  Seconds readEnd(const EventRecord& event, const IcsTime& start) {
    if (icalproperty* const property = first(ICAL_DTEND_PROPERTY)) {
      return storedAs(event, timeOf(property, "DTEND"));
    }
    if (icalproperty* const property = first(ICAL_DURATION_PROPERTY)) {
      return endAfter(start, icalproperty_get_duration(property));
    }
    return event.start;
  }

  static std::int64_t daysIn(const icaldurationtype& duration) {
    return static_cast<std::int64_t>(duration.weeks) * 7 + static_cast<std::int64_t>(duration.days);
  }

  /// The days of the length that count for each repetition anew. A length that is given by its end is the
  /// same number of seconds for each.
  std::int64_t daysOfDuration() const {
    icalproperty* const property =
        first(ICAL_DTEND_PROPERTY) == nullptr ? first(ICAL_DURATION_PROPERTY) : nullptr;
    return property == nullptr ? 0 : daysIn(icalproperty_get_duration(property));
  }

  /// Days and weeks are counted on the calendar, hours and less on the clock.
  static Seconds endAfter(const IcsTime& start, const icaldurationtype& duration) {
    if (duration.is_neg != 0) return start.stored();
    IcsTime end = start;
    end.wall += daysIn(duration) * kSecondsPerDay;
    return end.stored() + static_cast<Seconds>(duration.hours) * 3600 +
           static_cast<Seconds>(duration.minutes) * 60 + static_cast<Seconds>(duration.seconds);
  }

  /// The time in the way in which the event counts.
  static Seconds storedAs(const EventRecord& event, const IcsTime& time) {
    if (!event.zone) return time.wall;
    return time.zone == nullptr ? event.zone->toInstant(time.wall) : time.stored();
  }

  static RepetitionName nameOf(const EventRecord& event, const IcsTime& time) {
    // Some programs name the repetitions of all-day events by the time at which their day begins.
    if (time.isDate || event.isAllDay) {
      return {RepetitionKind::kDay, dayOf(time.wall) * kSecondsPerDay};
    }
    if (time.zone == nullptr) return {RepetitionKind::kWallTime, time.wall};
    return {RepetitionKind::kInstant, time.stored()};
  }

  bool reachesLater(icalproperty* property) {
    icalparameter* const range = icalproperty_get_first_parameter(property, ICAL_RANGE_PARAMETER);
    if (range == nullptr) return false;
    if (icalparameter_get_range(range) == ICAL_RANGE_THISANDPRIOR) {
      event_.leftOut.countInEvent(IcsLeftOut::kChangeOfEarlier);
    }
    return icalparameter_get_range(range) == ICAL_RANGE_THISANDFUTURE;
  }

  template <typename Value>
  static void sortOnce(std::vector<Value>& values) {
    std::sort(values.begin(), values.end());
    values.erase(std::unique(values.begin(), values.end()), values.end());
  }

  void readRepetitions(EventRecord& event) {
    if (icalproperty* const property = first(ICAL_RECURRENCEID_PROPERTY)) {
      event.replaces = {nameOf(event, timeOf(property, "RECURRENCE-ID")), reachesLater(property)};
      // It stands for one repetition; rules that some programs leave in it are the series's.
      return;
    }
    if (event.isCancelled) return;
    const RuleStart start{event.wallStart(), event.isAllDay, event.zone ? *event.zone : zones_.phoneZone()};
    forEach(ICAL_RRULE_PROPERTY, [&](icalproperty* property) {
      const auto rule = ruleFrom(icalproperty_get_rrule(property), start);
      if (rule) event.rules.push_back(rule->text());
    });
    forEach(ICAL_EXRULE_PROPERTY, [&](icalproperty* property) {
      const RuleStart ruleStart{exceptionRuleStart(property).value_or(start.wall), start.isAllDay,
                                start.zone};
      const auto rule = ruleFrom(icalproperty_get_exrule(property), ruleStart);
      if (rule) event.exceptionRules.push_back({ruleStart.wall, rule->text()});
    });
    if (event.zone && !event.rules.empty()) event.calendarDays = daysOfDuration();
    forEach(ICAL_EXDATE_PROPERTY, [&](icalproperty* property) {
      event.excluded.push_back(nameOf(event, timeOf(property, "EXDATE")));
    });
    forEach(ICAL_RDATE_PROPERTY, [&](icalproperty* property) { addDate(event, property); });
    // The database gives them back in order and once.
    sortOnce(event.excluded);
    sortOnce(event.exceptionRules);
    std::sort(event.added.begin(), event.added.end());
    const auto sameStart = [](const AddedDate& left, const AddedDate& right) {
      return left.start == right.start;
    };
    event.added.erase(std::unique(event.added.begin(), event.added.end(), sameStart), event.added.end());
  }

  std::optional<RecurrenceRule> ruleFrom(const icalrecurrencetype& read, const RuleStart& start) {
    auto rule = RecurrenceRule::fromFile(read, start, toEnds_);
    if (!rule && isForeign(read)) event_.leftOut.countInEvent(IcsLeftOut::kForeignRule);
    if (rule && read.count > 0 && rule->lastStart() == kEndless) {
      event_.leftOut.countInEvent(IcsLeftOut::kCount);
    }
    return rule;
  }

  /// None: the rule counts from the event's start, as rules do.
  static std::optional<Seconds> exceptionRuleStart(icalproperty* property) {
    for (icalparameter* parameter = icalproperty_get_first_parameter(property, ICAL_X_PARAMETER);
         parameter != nullptr; parameter = icalproperty_get_next_parameter(property, ICAL_X_PARAMETER)) {
      const char* const name = icalparameter_get_xname(parameter);
      const char* const value = icalparameter_get_xvalue(parameter);
      if (name == nullptr || value == nullptr || std::string_view(name) != kExceptionRuleStart) continue;
      const icaltimetype time = icaltime_from_string(value);
      if (icaltime_is_null_time(time) == 0) return wallSeconds(time);
    }
    return std::nullopt;
  }

  void addDate(EventRecord& event, icalproperty* property) {
    const icaldatetimeperiodtype value = icalvalue_get_datetimeperiod(icalproperty_get_value(property));
    if (icaltime_is_null_time(value.time) == 0) {
      const Seconds start = storedAs(event, timeFrom(property, value.time, "RDATE"));
      event.added.push_back({start, start + event.duration()});
      return;
    }
    const IcsTime start = timeFrom(property, value.period.start, "RDATE");
    const Seconds end = icaltime_is_null_time(value.period.end) != 0
                            ? endAfter(start, value.period.duration)
                            : storedAs(event, timeFrom(property, value.period.end, "RDATE"));
    const Seconds stored = storedAs(event, start);
    event.added.push_back({stored, cutOff(event, stored, end)});
  }

  const std::filesystem::path& file_;
  const IcsComponent& component_;
  IcsZones& zones_;
  WalkBudget& toEnds_;
  OwnedComponent parsed_;
  IcsEvent event_;
};

}  // namespace

IcsEvent readIcsEvent(const std::filesystem::path& file, const IcsComponent& component, IcsZones& zones,
                      WalkBudget& toEnds) {
  const MemoryCheck memory;
  try {
    IcsEvent event = IcsEventReader(file, component, zones, toEnds).read();
    memory.require();
    return event;
  } catch (const IcsError&) {
    memory.require();
    throw;
  }
}

}  // namespace phone
