#include "phone/calendarui/event_text.h"

#include "platform/eventkit/ek_event.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_date.h"
#include "platform/objc/owned.h"

namespace phone {

namespace {

std::string formatted(NSDate* date, NSString* format) {
  if (date == nullptr) return {};
  const auto formatter = objc::make<NSObject, "NSDateFormatter">();
  // The screens are in English whatever language the machine speaks.
  const auto locale = objc::makeWith<NSObject, "NSLocale", "initWithLocaleIdentifier:">("en_US"_ns);
  objc::send<"setLocale:">(formatter.get(), locale.get());
  objc::send<"setDateFormat:">(formatter.get(), format);
  const char* const text = objc::send<"stringFromDate:", NSString*>(formatter.get(), date)->UTF8String();
  return text == nullptr ? "" : text;
}

std::string timeText(NSDate* date) { return formatted(date, "HH:mm"_ns); }

}  // namespace

std::string dayText(NSDate* date) { return formatted(date, "EEEE, MMM d, yyyy"_ns); }

std::string momentText(NSDate* date, bool allDay) {
  return formatted(date, allDay ? "EEE, MMM d, yyyy"_ns : "EEE, MMM d, yyyy  HH:mm"_ns);
}

std::vector<std::string> spanLines(EKEvent* event) {
  const bool allDay = event->isAllDay();
  const std::string firstDay = dayText(event->startDate());
  const std::string lastDay = dayText(event->endDate());
  if (firstDay == lastDay) {
    if (allDay) return {firstDay, "all-day"};
    return {firstDay, "from " + timeText(event->startDate()) + " to " + timeText(event->endDate())};
  }
  if (allDay) return {"all-day from " + firstDay, "to " + lastDay};
  return {"from " + timeText(event->startDate()) + " " + firstDay,
          "to " + timeText(event->endDate()) + " " + lastDay};
}

}  // namespace phone
