// What `phone lockscreen` saw, and the two ways to print it.
#pragma once

#include <cctz/time_zone.h>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "phone/springboard/list_row.h"

namespace phone {

class TerminalStyle;

/// Times are seconds since 1 January 2001 UTC.
struct LockScreenReport {
  std::string release = {};
  double now = 0;
  cctz::time_zone zone = {};
  /// From top to bottom.
  std::vector<ListRow> rows = {};
  bool nowPlaying = false;
  struct Wake {
    std::string title;
    bool screenTurnsOn;
  };
  std::optional<Wake> wake = std::nullopt;
  struct Tap {
    /// From 1.
    std::size_t row;
    /// What it opened; both are empty when it only unlocked the phone.
    std::string url;
    std::string bundleID;
  };
  std::optional<Tap> tap = std::nullopt;
  /// What the phone logged; none when it was not asked for.
  std::optional<std::vector<std::string>> log = std::nullopt;
};

void printText(const LockScreenReport& report, const TerminalStyle& style, std::ostream& out);
void printJson(const LockScreenReport& report, std::ostream& out);

/// Whether the plug-in made the row.
bool isEventRow(const ListRow& row);
/// The colour in the row's message as "#RRGGBB"; empty for a row that has none.
std::string calendarColorOf(const ListRow& row);

}  // namespace phone
