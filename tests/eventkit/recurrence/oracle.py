"""What a recurrence rule means, from a library that shares nothing with ours.

python-dateutil walks most rules. Where it differs from RFC 5545, its input is corrected, or the days are counted
here by hand; each place says why.
"""

import datetime

from dateutil import rrule

DAYS = ["MO", "TU", "WE", "TH", "FR", "SA", "SU"]
FREQUENCIES = {
    "YEARLY": rrule.YEARLY, "MONTHLY": rrule.MONTHLY, "WEEKLY": rrule.WEEKLY, "DAILY": rrule.DAILY,
    "HOURLY": rrule.HOURLY, "MINUTELY": rrule.MINUTELY, "SECONDLY": rrule.SECONDLY,
}
LISTS = {
    "BYMONTH": "bymonth", "BYMONTHDAY": "bymonthday", "BYYEARDAY": "byyearday", "BYWEEKNO": "byweekno",
    "BYHOUR": "byhour", "BYMINUTE": "byminute", "BYSECOND": "bysecond", "BYSETPOS": "bysetpos",
}
TIME_LISTS = ("BYHOUR", "BYMINUTE", "BYSECOND")


def parse(text):
    """The parts of a rule: numbers, and lists of numbers or of (weekday, position)."""
    parts = dict(part.split("=") for part in text.split(";"))
    for name in parts:
        if name in LISTS:
            parts[name] = sorted({int(value) for value in parts[name].split(",")})
    if "BYDAY" in parts:
        parts["BYDAY"] = sorted({(DAYS.index(day[-2:]), int(day[:-2] or 0)) for day in parts["BYDAY"].split(",")})
    for name in ("INTERVAL", "COUNT"):
        if name in parts:
            parts[name] = int(parts[name])
    return parts


def first_day_of_week(day, wkst):
    return day - datetime.timedelta((day.weekday() - wkst) % 7)


def numbered_weeks(parts, start):
    """Yearly rules with numbered weeks, day by day.

    dateutil cuts the weeks around New Year in two and counts their days to different years, for INTERVAL and for
    BYSETPOS. Here such a rule's year is made of whole weeks: it begins with the first one that has at least four
    days in the calendar's year.
    """
    wkst = DAYS.index(parts.get("WKST", "MO"))
    weekdays = {day for day, _ in parts.get("BYDAY", [])}
    # dateutil takes a week without a weekday for all its days; what a rule leaves open comes from the start.
    if not weekdays and "BYMONTHDAY" not in parts and "BYYEARDAY" not in parts:
        weekdays = {start.weekday()}
    times = [datetime.time(hour, minute, second)
             for hour in parts.get("BYHOUR", [start.hour])
             for minute in parts.get("BYMINUTE", [start.minute])
             for second in parts.get("BYSECOND", [start.second])]

    def first_week(year):
        return first_day_of_week(datetime.date(year, 1, 4), wkst)

    def counted(wanted, place, count):
        return wanted is None or place in wanted or place - count - 1 in wanted

    year = (first_day_of_week(start.date(), wkst) + datetime.timedelta(3)).year
    while year <= datetime.MAXYEAR:
        begin, end = first_week(year), first_week(year + 1)
        chosen = []
        for offset in range((end - begin).days):
            day = begin + datetime.timedelta(offset)
            month_length = ((day.replace(day=28) + datetime.timedelta(4)).replace(day=1)
                            - day.replace(day=1)).days
            year_length = (datetime.date(day.year + 1, 1, 1) - datetime.date(day.year, 1, 1)).days
            if (counted(parts["BYWEEKNO"], offset // 7 + 1, (end - begin).days // 7)
                    and (not weekdays or day.weekday() in weekdays)
                    and ("BYMONTH" not in parts or day.month in parts["BYMONTH"])
                    and counted(parts.get("BYMONTHDAY"), day.day, month_length)
                    and counted(parts.get("BYYEARDAY"), day.timetuple().tm_yday, year_length)):
                chosen += [datetime.datetime.combine(day, time) for time in times]
        if "BYSETPOS" in parts:
            chosen = [chosen[place] for place in sorted({p - 1 if p > 0 else len(chosen) + p
                                                          for p in parts["BYSETPOS"]})
                      if 0 <= place < len(chosen)]
        yield from (time for time in chosen if time >= start)
        year += parts.get("INTERVAL", 1)


def by_dateutil(parts, start):
    """Everything else."""
    wkst = DAYS.index(parts.get("WKST", "MO"))
    arguments = {argument: parts[name] for name, argument in LISTS.items() if name in parts}
    if "BYDAY" in parts:
        arguments["byweekday"] = [rrule.weekday(day, position or None) for day, position in parts["BYDAY"]]
    begin = start
    if parts["FREQ"] == "WEEKLY" and "BYSETPOS" in parts:
        # dateutil's first week begins on the day of the start, so its positions there are wrong: begin with the
        # whole week and leave out what is too early.
        begin = datetime.datetime.combine(first_day_of_week(start.date(), wkst), datetime.time())
        arguments.setdefault("byweekday", [rrule.weekday(start.weekday())])
        for argument, value in (("byhour", start.hour), ("byminute", start.minute), ("bysecond", start.second)):
            arguments.setdefault(argument, [value])
    try:
        rule = rrule.rrule(FREQUENCIES[parts["FREQ"]], dtstart=begin, interval=parts.get("INTERVAL", 1), wkst=wkst,
                           **arguments)
        yield from (time for time in rule if time >= start)
    except ValueError:
        # The steps never meet the times of day.
        return


def occurrences(text, start, is_all_day, first, end):
    """The starts within [first, end), the start of the series among them."""
    parts = parse(text)
    if is_all_day:
        parts = {name: value for name, value in parts.items() if name not in TIME_LISTS}
    weeks = parts["FREQ"] == "YEARLY" and "BYWEEKNO" in parts
    until = datetime.datetime.strptime(parts["UNTIL"], "%Y%m%dT%H%M%S") if "UNTIL" in parts else None
    found = []
    # The year in which both walks give up; rules that never fit would take it minutes to the year 9999.
    datetime.MAXYEAR = end.year + 1
    # The start counts as the first occurrence, also where the rule leaves it out; dateutil leaves it out too.
    number = 1
    if first <= start < end:
        found.append(start)
    for time in numbered_weeks(parts, start) if weeks else by_dateutil(parts, start):
        if time == start:
            continue
        number += 1
        if time >= end or number > parts.get("COUNT", number) or (until and time > until):
            break
        if time >= first:
            found.append(time)
    return found
