// The settings file and what becomes of it in the settings model.
#include <gtest/gtest.h>
#include <limits>

#include "phone/foundation/log_sink.h"
#include "platform/coregraphics/cg_color.h"
#include "platform/uikit/ui_color.h"
#include "platform/uikit/ui_image.h"
#include "tests/tavimo/support/lock_screen.h"

namespace phone {
namespace {

using Lines = std::vector<std::string>;
using Color = std::vector<CGFloat>;

const Color kWhite{1, 1, 1, 1};
const Color kGray{0.5, 0.5, 0.5, 1};
const Color kRed{1, 0, 0, 1};

/// A 32-bit phone's integers keep the lower half of a longer number.
constexpr bool kIs64Bit = sizeof(NSInteger) == 8;

bool flag(const char* name) { return exported<bool>(name); }
NSInteger number(const char* name) { return exported<NSInteger>(name); }
std::string textNamed(const char* name) { return utf8(exported<NSString*>(name)); }

/// Red, green, blue and alpha, for a grey colour too.
Color color(const char* name) {
  CGColorRef const drawn = exported<UIColor*>(name)->getCGColor();
  const CGFloat* const parts = CGColorGetComponents(drawn);
  if (CGColorGetNumberOfComponents(drawn) == 2) return {parts[0], parts[0], parts[0], parts[1]};
  return {parts, parts + 4};
}

std::string entry(const std::string& key, const std::string& value) {
  return "<key>" + key + "</key>" + value;
}
std::string integer(std::int64_t value) { return "<integer>" + std::to_string(value) + "</integer>"; }
std::string string(const std::string& value) { return "<string>" + value + "</string>"; }

/// What every field holds when nothing is set; `what` tells the loads of one test apart.
void expectDefaults(const std::string& what) {
  SCOPED_TRACE(what);
  EXPECT_FALSE(flag("debugMode"));
  EXPECT_TRUE(flag("isEnabled"));
  EXPECT_TRUE(flag("compatibilityMode"));
  EXPECT_TRUE(flag("hideOnNowPlayingScreen"));
  EXPECT_EQ(textNamed("customLaunchAppBundleID"), "");
  EXPECT_TRUE(flag("showSeparatorLines"));
  EXPECT_FALSE(flag("rightAlignedDate"));
  EXPECT_TRUE(flag("onlySelectedCalendars"));
  EXPECT_FALSE(flag("displayLocation"));
  EXPECT_TRUE(flag("sameHeightRows"));
  EXPECT_EQ(number("wallpaperBlurMode"), 2);
  EXPECT_EQ(number("swipeAction"), 1);
  EXPECT_EQ(color("textColor"), kWhite);
  EXPECT_FALSE(flag("titleColorSameAsCalendarColor"));
  EXPECT_EQ(color("subtitleTextColor"), kGray);
  EXPECT_EQ(color("dateTextColor"), kGray);
  for (const char* size : {"textSize", "subtitleTextSize", "dateTextSize"})
    EXPECT_EQ(number(size), 14) << size;
  EXPECT_EQ(number("daysToDisplay"), 2);
  EXPECT_EQ(number("maxEventsToDisplay"), 0);
  EXPECT_EQ(textNamed("iconFile"), "/Applications/MobileCal.app/icon-about@2x.png");
}

constexpr const char* kKeys[] = {"debugMode",
                                 "enabled",
                                 "compatibilityMode",
                                 "hideOnNowPlayingScreen",
                                 "showSeparatorLines",
                                 "rightAlignedDate",
                                 "onlySelectedCalendars",
                                 "displayLocation",
                                 "sameHeightRows",
                                 "wallpaperBlurMode",
                                 "swipeAction",
                                 "textColor",
                                 "textSize",
                                 "subtitleTextColor",
                                 "subtitleTextSize",
                                 "dateTextColor",
                                 "dateTextSize",
                                 "daysToDisplay",
                                 "maxEventsToDisplay",
                                 "iconFile",
                                 "customLaunchAppBundleID"};

std::string everyKey(const std::string& value) {
  std::string entries;
  for (const char* key : kKeys) entries += entry(key, value);
  return entries;
}

std::string nested(int depth, const std::string& open, const std::string& close) {
  std::string list;
  for (int i = 0; i < depth; ++i) list += open;
  for (int i = 0; i < depth; ++i) list += close;
  return list;
}

TEST(Settings, NothingIsSetBeforeTheFirstReading) {
  const LockScreen phone;
  for (const char* const name : {"isEnabled", "debugMode", "compatibilityMode", "hideOnNowPlayingScreen",
                                 "showSeparatorLines", "rightAlignedDate", "onlySelectedCalendars",
                                 "displayLocation", "sameHeightRows", "titleColorSameAsCalendarColor"}) {
    EXPECT_FALSE(flag(name)) << name;
  }
  for (const char* const name : {"wallpaperBlurMode", "swipeAction", "textSize", "subtitleTextSize",
                                 "dateTextSize", "daysToDisplay", "maxEventsToDisplay", "sortPriority"}) {
    EXPECT_EQ(number(name), 0) << name;
  }
  for (const char* const name :
       {"customLaunchAppBundleID", "textColor", "subtitleTextColor", "dateTextColor", "iconFile", "icon"}) {
    EXPECT_EQ(exported<NSObject*>(name), nullptr) << name;
  }
}

TEST(Settings, FilesThatCannotBeReadGiveTheDefaultsAndOneMessage) {
  LockScreen phone;
  const Lines message{"TVM: unable to load preferences."};
  const auto expectUnreadable = [&](const std::string& what) {
    clearLog();
    phone.load();
    expectDefaults(what);
    EXPECT_EQ(loggedWith("unable to load preferences"), message) << what;
  };
  expectUnreadable("missing");
  const std::string good = propertyList("<dict>" + entry("enabled", "<false/>") + "</dict>");
  for (const std::string& bytes :
       {std::string(), good.substr(0, good.size() / 2), std::string("bplist00\x01\x02 and no more"),
        std::string(100, '\0'), propertyList("<array/>"), propertyList("<string>text</string>"),
        propertyList(nested(5000, "<dict><key>k</key>", "</dict>"))}) {
    phone.writePreferences(kSettings, bytes);
    expectUnreadable(bytes.substr(0, 80));
  }
  std::filesystem::remove(phone.preferences(kSettings));
  std::filesystem::create_directory(phone.preferences(kSettings));
  expectUnreadable("directory");
}

TEST(Settings, LargeAndDeepFilesAreRead) {
  LockScreen phone;
  std::string filler;
  filler.resize(10'000'000, 'x');
  phone.settings(entry("filler", string(filler)) + entry("textSize", integer(18)));
  phone.load();
  EXPECT_EQ(number("textSize"), 18);
  phone.settings(entry("deep", nested(500, "<array>", "</array>")) + entry("textSize", integer(19)));
  phone.load();
  EXPECT_EQ(number("textSize"), 19);
}

TEST(Settings, ValuesThatCannotBeConvertedCountAsMissing) {
  LockScreen phone;
  for (const std::string& value :
       {std::string("<dict/>"), std::string("<array><true/></array>"), std::string("<data>AAAA</data>"),
        std::string("<date>2014-03-07T10:00:00Z</date>")}) {
    phone.settings(everyKey(value));
    clearLog();
    phone.load();
    expectDefaults(value);
    EXPECT_EQ(loggedWith("unable to load preferences"), Lines());
  }
}

TEST(Settings, FlagsAreReadFromBooleansNumbersAndTexts) {
  LockScreen phone;
  const struct {
    const char* key;
    const char* field;
  } flags[] = {{"debugMode", "debugMode"},
               {"enabled", "isEnabled"},
               {"compatibilityMode", "compatibilityMode"},
               {"hideOnNowPlayingScreen", "hideOnNowPlayingScreen"},
               {"showSeparatorLines", "showSeparatorLines"},
               {"rightAlignedDate", "rightAlignedDate"},
               {"onlySelectedCalendars", "onlySelectedCalendars"},
               {"displayLocation", "displayLocation"},
               {"sameHeightRows", "sameHeightRows"}};
  const struct {
    const char* value;
    bool expected;
  } values[] = {{"<true/>", true},
                {"<false/>", false},
                {"<integer>7</integer>", true},
                {"<integer>0</integer>", false},
                {"<real>1.5</real>", true},
                {"<string>YES</string>", true},
                {"<string>1</string>", true},
                {"<string>NO</string>", false},
                {"<string></string>", false}};
  for (const auto& [value, expected] : values) {
    phone.settings(everyKey(value));
    phone.load();
    for (const auto& [key, field] : flags) EXPECT_EQ(flag(field), expected) << key << " " << value;
  }
}

TEST(Settings, NumbersAreKeptAsReadOrBroughtIntoTheirRange) {
  LockScreen phone;
  const struct {
    std::string value;
    NSInteger size;
    NSInteger blurMode;
    NSInteger action;
  } rows[] = {{integer(0), 0, 0, 0},
              {integer(1), 1, 1, 1},
              {integer(2), 2, 2, 2},
              {integer(3), 3, 2, 3},
              {integer(4), 4, 2, 1},
              {integer(-1), -1, 2, 1},
              {string("18"), 18, 2, 1},
              {string("3 and more"), 3, 2, 3},
              {string("none"), 0, 0, 0},
              {"<real>1.9</real>", 1, 1, 1},
              {"<true/>", 1, 1, 1},
              // Sizes keep 32 bits of a number, the others what fits into the phone's integer.
              {integer(0x100000001), 1, kIs64Bit ? 2 : 1, 1}};
  for (const auto& [value, size, blurMode, action] : rows) {
    SCOPED_TRACE(value);
    phone.settings(everyKey(value));
    phone.load();
    for (const char* field :
         {"textSize", "subtitleTextSize", "dateTextSize", "daysToDisplay", "maxEventsToDisplay"}) {
      EXPECT_EQ(number(field), size) << field;
    }
    EXPECT_EQ(number("wallpaperBlurMode"), blurMode);
    EXPECT_EQ(number("swipeAction"), action);
  }
  for (const NSInteger extreme : {std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
    phone.settings(entry("daysToDisplay", integer(extreme)) + entry("textSize", integer(extreme)));
    phone.load();
    EXPECT_EQ(number("daysToDisplay"), extreme);
    EXPECT_EQ(number("textSize"), extreme);
  }
}

TEST(Settings, ColorsAreChosenByNumber) {
  LockScreen phone;
  const Color black{0, 0, 0, 1};
  const struct {
    std::int64_t index;
    Color title;
    Color date;
  } rows[] = {{0, {1, 0, 0, 1}, {1, 0, 0, 1}},
              {1, black, {0.01, 0.01, 0.01, 1}},
              {2, kGray, {1, 1, 1, 0.5}},
              {3, kWhite, kWhite},
              {4, {0, 1, 0, 1}, {0, 1, 0, 1}},
              {5, {0, 0, 1, 1}, {0, 0, 1, 1}},
              {6, {1, 1, 0, 1}, {1, 1, 0, 1}},
              {7, {1, 0.5, 0, 1}, {1, 0.5, 0, 1}},
              {8, {0.5, 0, 0.5, 1}, {0.5, 0, 0.5, 1}},
              {9, {0.6, 0.4, 0.2, 1}, {0.6, 0.4, 0.2, 1}},
              {10, kWhite, kWhite},
              {-1, kWhite, kWhite},
              {999, kWhite, kWhite},
              {0x100000000, kIs64Bit ? kWhite : kRed, kIs64Bit ? kWhite : kRed}};
  for (const auto& [index, title, date] : rows) {
    SCOPED_TRACE(index);
    phone.settings(everyKey(integer(index)));
    phone.load();
    EXPECT_EQ(color("textColor"), title);
    EXPECT_EQ(color("subtitleTextColor"), title);
    EXPECT_EQ(color("dateTextColor"), date);
    EXPECT_EQ(flag("titleColorSameAsCalendarColor"), index == 999);
  }
}

TEST(Settings, CalendarColoredTitlesStayUntilAnotherColorIsNamed) {
  LockScreen phone;
  const struct {
    std::string entries;
    bool expected;
  } loads[] = {{"", false},
               {entry("textColor", string("999")), true},
               {"", true},
               {entry("textColor", integer(3)), false},
               {"", false},
               // A value that is no number ends it as well.
               {entry("textColor", integer(999)), true},
               {entry("textColor", "<dict/>"), false},
               {entry("textColor", integer(999)), true},
               {entry("textColor", "<array><integer>999</integer></array>"), false},
               {entry("textColor", integer(999)), true},
               {entry("textColor", "<data>OTk5</data>"), false}};
  for (const auto& [entries, expected] : loads) {
    phone.settings(entries);
    phone.load();
    EXPECT_EQ(flag("titleColorSameAsCalendarColor"), expected) << entries;
    EXPECT_EQ(color("textColor"), kWhite) << entries;
  }
}

TEST(Settings, TextsAreKeptUnchanged) {
  LockScreen phone;
  const std::string name = " org.example.\u00c4pp \U0001F600 ";
  phone.settings(entry("customLaunchAppBundleID", string(name)));
  phone.load();
  EXPECT_EQ(textNamed("customLaunchAppBundleID"), name);
  phone.settings(entry("customLaunchAppBundleID", integer(7)));
  phone.load();
  EXPECT_EQ(textNamed("customLaunchAppBundleID"), "");
}

}  // namespace
}  // namespace phone
