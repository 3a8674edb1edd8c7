#include "phone/calendarstore/ics/ics_event_text.h"

#include "phone/calendarstore/database/series_length.h"
#include "phone/calendarstore/ics/ics_text.h"
#include "phone/calendarstore/recurrence/ical_owned.h"

namespace phone {

namespace {

icaltimetype dateOf(Seconds wall) {
  icaltimetype date = icalTime(wall);
  date.is_date = 1;
  return date;
}

icaltimetype universalTime(Seconds instant) {
  icaltimetype time = icalTime(instant);
  time.zone = icaltimezone_get_utc_timezone();
  return time;
}

/// Days are counted on the calendar, hours and less on the clock.
icaldurationtype durationOf(std::int64_t days, Seconds seconds) {
  icaldurationtype duration{};
  duration.days = static_cast<unsigned>(days);
  duration.hours = static_cast<unsigned>(seconds / 3600);
  duration.minutes = static_cast<unsigned>(seconds / 60 % 60);
  duration.seconds = static_cast<unsigned>(seconds % 60);
  return duration;
}

bool isUniversal(const EventZone& zone) { return zone.definition().empty() && zone.name() == "UTC"; }

/// A time as the file has it, with the zone that it is of; none for a wall time, a day or universal time.
struct IcsTime {
  icaltimetype time;
  const EventZone* zone = nullptr;
};

class IcsEventWriter {
 public:
  IcsEventWriter(const EventRecord& event, IcsZoneList& zones)
      : event_(event), zones_(zones), component_(icalcomponent_new(ICAL_VEVENT_COMPONENT)) {}

  std::string write(const std::optional<EventZone>& seriesZone, Seconds now) {
    const Seconds stamp = event_.modified == 0 ? now : event_.modified;
    add(icalproperty_new_dtstamp(universalTime(stamp)));
    if (event_.modified != 0) add(icalproperty_new_lastmodified(universalTime(event_.modified)));
    if (event_.revision > 0) add(icalproperty_new_sequence(static_cast<int>(event_.revision)));
    if (event_.isCancelled) add(icalproperty_new_status(ICAL_STATUS_CANCELLED));
    addTimes();
    if (event_.replaces) addReplaced(*event_.replaces, seriesZone);
    for (const std::string& rule : event_.rules) add(ruleProperty(rule, icalproperty_new_rrule));
    for (const ExceptionRule& exception : event_.exceptionRules) addExceptionRule(exception);
    for (const RepetitionName& name : event_.excluded) add(named(ICAL_EXDATE_PROPERTY, name, event_.zone));
    for (const AddedDate& date : event_.added) addDate(date);
    std::string text = OwnedIcalText(icalcomponent_as_ical_string_r(component_.get())).get();
    return text.insert(text.find('\n') + 1, texts());
  }

 private:
  std::string texts() const {
    std::string lines = textLine("UID", event_.uid);
    if (!event_.title.empty()) lines += textLine("SUMMARY", event_.title);
    if (event_.location) lines += textLine("LOCATION", *event_.location);
    return lines;
  }

  void add(icalproperty* property) { icalcomponent_add_property(component_.get(), property); }

  icalproperty* inZone(icalproperty* property, const EventZone* zone) {
    if (zone != nullptr) {
      icalproperty_add_parameter(property, icalparameter_new_tzid(zones_.nameOf(*zone).c_str()));
    }
    return property;
  }

  void addTime(icalproperty* property, const EventZone* zone) { add(inZone(property, zone)); }

  /// An instant as a clock in the zone shows it, or in universal time when that clock shows it twice.
  static IcsTime instantIn(const EventZone& zone, Seconds instant) {
    const Seconds wall = zone.toWall(instant);
    if (isUniversal(zone) || zone.toInstant(wall) != instant) return {universalTime(instant)};
    return {icalTime(wall), &zone};
  }

  IcsTime timeOf(Seconds stored) const {
    if (event_.isAllDay) return {dateOf(stored)};
    return event_.zone ? instantIn(*event_.zone, stored) : IcsTime{icalTime(stored)};
  }

  void addTimes() {
    const IcsTime start = timeOf(event_.start);
    addTime(icalproperty_new_dtstart(start.time), start.zone);
    if (event_.end == event_.start) return;
    if (const SeriesLength length = SeriesLength::of(event_); length.days > 0) {
      return add(icalproperty_new_duration(durationOf(length.days, length.rest)));
    }
    const IcsTime end = timeOf(event_.end);
    addTime(icalproperty_new_dtend(end.time), end.zone);
  }

  void addReplaced(const ReplacedRepetition& replaced, const std::optional<EventZone>& zone) {
    icalproperty* const property = named(ICAL_RECURRENCEID_PROPERTY, replaced, zone);
    if (replaced.andLater) {
      icalproperty_add_parameter(property, icalparameter_new_range(ICAL_RANGE_THISANDFUTURE));
    }
    add(property);
  }

  icalproperty* named(icalproperty_kind kind, const RepetitionName& name,
                      const std::optional<EventZone>& zone) {
    IcsTime time{icalTime(name.value)};
    if (name.kind == RepetitionKind::kDay) time = {dateOf(name.value)};
    if (name.kind == RepetitionKind::kInstant) {
      time = zone ? instantIn(*zone, name.value) : IcsTime{universalTime(name.value)};
    }
    icalproperty* const property = icalproperty_new(kind);
    icalproperty_set_value(property, icalvalue_new_datetimedate(time.time));
    return inZone(property, time.zone);
  }

  /// The end of a stored rule is a wall time. The format wants a day for events of whole days, and universal
  /// time for those that have a zone.
  icaltimetype untilOf(Seconds wall) const {
    if (event_.isAllDay) return dateOf(wall);
    if (!event_.zone || event_.zone->toWall(event_.zone->toInstant(wall)) != wall) return icalTime(wall);
    return universalTime(event_.zone->toInstant(wall));
  }

  icalproperty* ruleProperty(const std::string& text, icalproperty* (*make)(icalrecurrencetype)) const {
    icalrecurrencetype rule = icalrecurrencetype_from_string(text.c_str());
    const OwnedIcalText calendar(rule.rscale);
    if (icaltime_is_null_time(rule.until) == 0) rule.until = untilOf(wallSeconds(rule.until));
    return make(rule);
  }

  void addExceptionRule(const ExceptionRule& exception) {
    icalproperty* const property = ruleProperty(exception.rule, icalproperty_new_exrule);
    if (exception.wallStart != event_.wallStart()) {
      const OwnedIcalText start(icaltime_as_ical_string_r(icalTime(exception.wallStart)));
      icalparameter* const parameter = icalparameter_new_x(start.get());
      icalparameter_set_xname(parameter, kExceptionRuleStart);
      icalproperty_add_parameter(property, parameter);
    }
    add(property);
  }

  void addDate(const AddedDate& date) {
    icaldatetimeperiodtype value{};
    IcsTime start = timeOf(date.start);
    if (date.end - date.start == event_.duration()) {
      value.time = start.time;
    } else {
      if (event_.isAllDay) start = {icalTime(date.start)};
      value.period.start = start.time;
      value.period.duration = durationOf(0, date.end - date.start);
    }
    addTime(icalproperty_new_rdate(value), start.zone);
  }

  const EventRecord& event_;
  IcsZoneList& zones_;
  OwnedComponent component_;
};

}  // namespace

std::string icsEventText(const EventRecord& event, const std::optional<EventZone>& seriesZone, Seconds now,
                         IcsZoneList& zones) {
  return IcsEventWriter(event, zones).write(seriesZone, now);
}

}  // namespace phone
