#include "phone/app/lock_screen_report.h"

#include <nlohmann/json.hpp>
#include <ostream>

#include "phone/app/local_time.h"
#include "phone/app/printable.h"
#include "phone/app/printed_json.h"
#include "phone/app/terminal_style.h"

namespace phone {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::string_view kColorTag = "TVM|";

std::string actionText(const std::string& url, const std::string& bundleID) {
  if (!url.empty()) return "opens " + printable(url);
  if (!bundleID.empty()) return "opens the application " + printable(bundleID);
  return "only unlocks";
}

void printRow(const LockScreenReport& report, const ListRow& row, std::size_t number,
              const TerminalStyle& style, std::ostream& out) {
  const std::string label = std::to_string(number);
  const std::string indent(label.size() + 2, ' ');
  out << label << "  " << style.bold(printable(row.title)) << "\n";
  if (!row.subtitle.empty()) out << indent << printable(row.subtitle) << "\n";
  if (!isEventRow(row) && !row.message.empty()) out << indent << printable(row.message) << "\n";
  if (row.date) {
    out << indent
        << timeSpan(*row.date, row.endDate.value_or(*row.date), row.isAllDay, report.now, report.zone)
        << "\n";
  }
  std::string details = row.identifier.empty() ? row.itemClass : printable(row.identifier);
  if (isEventRow(row)) details += ", calendar colour " + calendarColorOf(row);
  details += ", " + actionText(row.launchURL, row.launchBundleID);
  out << indent << style.dot(calendarColorOf(row)) << style.dim(details) << "\n\n";
}

/// "3 events, 1 other".
std::string summary(const std::vector<ListRow>& rows) {
  std::size_t events = 0;
  for (const ListRow& row : rows) events += isEventRow(row) ? 1 : 0;
  const std::size_t others = rows.size() - events;
  std::string text = std::to_string(events) + (events == 1 ? " event" : " events");
  if (others > 0) text += ", " + std::to_string(others) + (others == 1 ? " notification" : " notifications");
  return text;
}

Json optionalText(const std::string& text) { return text.empty() ? Json(nullptr) : Json(text); }

Json optionalTime(const std::optional<double>& time, const cctz::time_zone& zone) {
  return time ? Json(isoTime(*time, zone)) : Json(nullptr);
}

Json actionJson(const std::string& url, const std::string& bundleID) {
  if (!url.empty()) return {{"url", url}};
  if (!bundleID.empty()) return {{"application", bundleID}};
  return nullptr;
}

Json rowJson(const ListRow& row, const cctz::time_zone& zone) {
  return {{"kind", isEventRow(row) ? "event" : "notification"},
          {"identifier", optionalText(row.identifier)},
          {"title", row.title},
          {"subtitle", optionalText(row.subtitle)},
          {"message", optionalText(row.message)},
          {"start", optionalTime(row.date, zone)},
          {"end", optionalTime(row.endDate, zone)},
          {"allDay", row.isAllDay},
          {"calendarColor", optionalText(calendarColorOf(row))},
          {"action", actionJson(row.launchURL, row.launchBundleID)},
          {"section", optionalText(row.section)},
          {"publicationDate", optionalTime(row.publicationDate, zone)},
          {"lastInterruptDate", optionalTime(row.lastInterruptDate, zone)},
          {"itemClass", row.itemClass}};
}

}  // namespace

bool isEventRow(const ListRow& row) { return row.identifier.starts_with("Tavimo"); }

std::string calendarColorOf(const ListRow& row) {
  if (!isEventRow(row) || !row.message.starts_with(kColorTag)) return "";
  return row.message.substr(kColorTag.size());
}

void printText(const LockScreenReport& report, const TerminalStyle& style, std::ostream& out) {
  out << longTime(report.now, report.zone) << " (" << report.zone.name() << "), iOS " << report.release
      << (report.nowPlaying ? ", Now Playing" : "") << "\n\n";
  for (std::size_t i = 0; i < report.rows.size(); ++i) printRow(report, report.rows[i], i + 1, style, out);
  out << summary(report.rows) << "\n";
  if (report.wake) {
    out << "\"" << printable(report.wake->title) << "\" "
        << (report.wake->screenTurnsOn ? "turns the screen on" : "leaves the screen dark") << "\n";
  }
  if (report.tap) {
    out << "a tap on " << report.tap->row << ", \"" << printable(report.rows[report.tap->row - 1].title)
        << "\", " << actionText(report.tap->url, report.tap->bundleID) << "\n";
  }
  if (!report.log) return;
  out << "\nLog:\n";
  for (const std::string& line : *report.log) out << "  " << printable(line) << "\n";
}

void printJson(const LockScreenReport& report, std::ostream& out) {
  Json json{{"release", report.release},
            {"now", isoTime(report.now, report.zone)},
            {"timeZone", report.zone.name()},
            {"nowPlaying", report.nowPlaying},
            {"items", Json::array()}};
  for (const ListRow& row : report.rows) json["items"].push_back(rowJson(row, report.zone));
  if (report.wake) {
    json["wake"] = {{"title", report.wake->title}, {"screenTurnsOn", report.wake->screenTurnsOn}};
  }
  if (report.tap) {
    json["tap"] = {{"item", report.tap->row}, {"action", actionJson(report.tap->url, report.tap->bundleID)}};
  }
  if (report.log) json["log"] = *report.log;
  out << printedJson(json);
}

}  // namespace phone
