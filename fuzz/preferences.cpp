// The five files that the plug-in reads when the lock screen list loads, through a real load. What holds for
// every content: the load ends; the phone's own notification stays, alone and whole; all else in the list is
// the plug-in's, nothing when it is switched off, and no more than it is told to show.
#include <algorithm>

#include "contract/files.h"
#include "fuzz/support/sections.h"
#include "fuzz/support/target.h"
#include "phone/calendarstore/ics/calendar_import.h"
#include "phone/eventkit/store_connection.h"
#include "phone/foundation/phone_root.h"
#include "phone/springboard/home_screen.h"
#include "phone/uikit/image_file.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_dictionary.h"
#include "platform/foundation/ns_number.h"
#include "tests/foundation/temporary_folder.h"
#include "tests/support/built.h"
#include "tests/tavimo/support/objects.h"
#include "tests/tavimo/support/plugin_values.h"

namespace phone::fuzz {

namespace {

namespace fs = std::filesystem;

struct PreferenceFile {
  const char* part;
  /// On the phone.
  const char* path;
};

constexpr PreferenceFile kFiles[] = {{"settings", contract::kSettingsFile},
                                     {"sorting", contract::kOrderingFile},
                                     {"calendars", contract::kCalendarSelectionFile},
                                     {"events", contract::kHiddenEventsFile},
                                     {"calendar app", contract::kCalendarAppPreferencesFile}};

constexpr const char* kCalendars = R"(BEGIN:VCALENDAR
VERSION:2.0
X-WR-CALNAME:Work
BEGIN:VEVENT
UID:meeting
DTSTART:20140307T110000Z
DURATION:PT1H
SUMMARY:Meeting
LOCATION:Room 1
END:VEVENT
BEGIN:VEVENT
UID:daily
DTSTART:20140301T140000Z
DURATION:PT15M
RRULE:FREQ=DAILY
SUMMARY:Daily
END:VEVENT
BEGIN:VEVENT
UID:holiday
DTSTART;VALUE=DATE:20140308
SUMMARY:Holiday
END:VEVENT
END:VCALENDAR
)";

class PreferencesTarget : public Target {
 public:
  PreferencesTarget()
      : home_(HomeScreen::boot(
            {.root = root_.path(), .release = "9.3", .now = utc(2014, 3, 7, 10), .timeZone = "Europe/Berlin"},
            pluginLibrary())) {
    fs::create_directories(pathOnThisMachine(contract::kSettingsFile).parent_path());
    const fs::path calendars = root_.path() / "calendars.ics";
    writeBytes(calendars, kCalendars);
    importCalendars(sharedDatabaseForWriting(), {calendars});
    const fs::path icon = root_.path() / std::string_view(contract::kCalendarAppIcon).substr(1);
    fs::create_directories(icon.parent_path());
    writePng(makeSurface(58, 58), icon);
    home_.load();
    home_.postNotification({.title = kTitle, .text = "Lunch?"});
  }

  void tryInput(std::string_view bytes) override {
    const Sections input = sectionsOf(bytes);
    for (const PreferenceFile& file : kFiles) {
      const auto content = section(input, file.part);
      const fs::path path = pathOnThisMachine(file.path);
      content ? writeBytes(path, *content) : void(fs::remove(path));
    }
    home_.load();
    checkList();
    require(home_.picture() != nullptr, "the lock screen can be drawn");
  }

 private:
  static constexpr const char* kTitle = "Anna";

  void checkList() {
    std::size_t hosts = 0;
    NSInteger own = 0;
    for (const ListRow& row : home_.rows()) {
      row.identifier.starts_with("Tavimo ") ? ++own : static_cast<NSInteger>(++hosts);
      require(row.identifier.starts_with("Tavimo ") || row.title == kTitle,
              "the list has no item of its own making: " + row.identifier);
      require(row.frame && row.frame->size.height >= 0, "a row has a height: " + row.identifier);
    }
    require(hosts == 1,
            "the phone's own notification is listed once, not " + std::to_string(hosts) + " times");
    const bool isEnabled = exported<bool>("isEnabled");
    require(isEnabled || own == 0, "nothing is shown while switched off");
    require(!isEnabled || !saysDisabled(), "a boolean switches the plug-in off");
    const auto most = exported<NSInteger>("maxEventsToDisplay");
    require(most <= 0 || own <= most, "no more events are shown than the settings say");
  }

  /// Whether the settings file switches the plug-in off beyond doubt, as read without the plug-in.
  static bool saysDisabled() {
    const fs::path file = pathOnThisMachine(contract::kSettingsFile);
    NSDictionary* const settings = NSDictionary::dictionaryWithContentsOfFile(text(file.string()));
    NSObject* const enabled = settings->objectForKey("enabled"_ns);
    return enabled != nullptr && enabled->isKindOfClass(objc::classOf<NSNumber>()) &&
           !static_cast<NSNumber*>(enabled)->boolValue();
  }

  TemporaryFolder root_;
  HomeScreen home_;
};

}  // namespace

std::unique_ptr<Target> makeTarget() { return std::make_unique<PreferencesTarget>(); }

}  // namespace phone::fuzz
