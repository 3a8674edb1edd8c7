// A calendar process without a plug-in on a fresh phone of each release.
#pragma once

#include <gtest/gtest.h>
#include <string>

#include "phone/calendarui/calendar_process.h"
#include "platform/eventkit/ek_event.h"
#include "tests/foundation/temporary_folder.h"

namespace phone {

// 7 March 2014, 17:00 in Berlin.
inline constexpr double kFive = 415'900'800.0;

class CalendarFixture : public testing::TestWithParam<const char*> {
 protected:
  CalendarProcess boot() {
    return CalendarProcess::boot(
        {.root = folder_.path(), .release = GetParam(), .now = kFive - 14'400, .timeZone = "Europe/Berlin"});
  }

  /// Adds an event through the editor and gives its identifier.
  static std::string add(CalendarProcess& calendar, const EventFields& fields) {
    EKEventEditor* const editor = calendar.newEvent();
    const auto event = objc::Owned<EKEvent>::retain(static_cast<EKEvent*>(editor->calendarItem()));
    calendar.enter(editor, fields);
    EXPECT_EQ(event->externalURI(), nullptr) << "An event has no address before it is saved.";
    EXPECT_TRUE(calendar.close(editor, EditAction::kSaved));
    EXPECT_NE(event->externalURI(), nullptr);
    return event->eventIdentifier()->UTF8String();
  }

  std::filesystem::path folder() const { return folder_.path(); }
  std::filesystem::path picture() const { return folder_.path() / "screen.png"; }

 private:
  TemporaryFolder folder_;
};

inline std::string releaseName(const testing::TestParamInfo<const char*>& release) {
  std::string name = std::string("ios") + release.param;
  name.erase(name.find('.'), 1);
  return name;
}

/// The rows, one a line, groups apart.
inline std::string textOf(const CalendarScreen& screen) {
  std::string text;
  for (const auto& group : screen.groups) {
    if (!text.empty()) text += "--\n";
    for (const Row& row : group) {
      text += row.text + (row.detail.empty() ? "" : " = " + row.detail);
      if (row.switchOn) text += *row.switchOn ? " (on)" : " (off)";
      text += "\n";
    }
  }
  return text;
}

}  // namespace phone
