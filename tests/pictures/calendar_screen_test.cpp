// Event views and event editors with the plug-in's row, against their reference pictures and the numbers kept
// beside them.
#include <algorithm>
#include <gtest/gtest.h>

#include "tests/foundation/temporary_folder.h"
#include "tests/pictures/calendar_scene.h"
#include "tests/pictures/reference.h"
#include "tests/pictures/scene.h"
#include "tests/support/built.h"

namespace phone {
namespace {

/// A line for every row with its place, and that of its switch.
std::string layoutText(const CalendarScreen& screen) {
  std::string text = screen.bar.leftButton + " | " + screen.bar.title + " | " + screen.bar.rightButton + "\n";
  for (const auto& group : screen.groups) {
    text += "\n";
    for (const Row& row : group) {
      text += "\"" + row.text + "\" \"" + row.detail + "\" " + rectText(row.frame);
      if (row.switchOn) text += std::string(*row.switchOn ? ", on " : ", off ") + rectText(*row.switchFrame);
      text += "\n";
    }
  }
  return text;
}

/// Where letters stand: bar, delete button, and the rows up to their switches.
std::vector<PixelRect> letteringOf(const CalendarScreen& screen, const HostOptions& options) {
  constexpr double kBarHeight = 64;
  std::vector<CGRect> lettering = {{{0, 0}, {options.screenWidth, kBarHeight}}};
  double bottom = 0;
  for (const auto& group : screen.groups) {
    for (const Row& row : group) {
      CGRect letters = row.frame;
      if (row.switchFrame) letters.size.width = row.switchFrame->origin.x - 2;
      lettering.push_back(letters);
      bottom = row.frame.origin.y + row.frame.size.height;
    }
  }
  if (!screen.bar.deleteButton.empty()) lettering.push_back({{0, bottom}, {options.screenWidth, 100}});
  std::vector<PixelRect> pixels;
  pixels.reserve(lettering.size());
  for (const CGRect& rect : lettering) pixels.push_back(pixelsAround(rect, options.screenScale));
  return pixels;
}

class CalendarPicture : public testing::TestWithParam<CalendarScene> {};

TEST_P(CalendarPicture, IsAsItWas) {
  const CalendarScene& scene = GetParam();
  const TemporaryFolder folder;
  writePreferences(folder.path(), "com.apple.mobilecal.plist", "");
  importInto(folder.path(), {"Work.ics", "Home.ics"});
  const HostOptions options{
      .root = folder.path(), .release = scene.release, .now = kSceneSeconds, .timeZone = kSceneTimeZone};
  auto calendar = CalendarProcess::boot(options, pluginLibrary());
  UIViewController* const shown = scene.show(calendar);
  const CalendarScreen screen = calendar.screenOf(shown);
  const std::filesystem::path reference = referenceFolder("calendar") / scene.name;
  expectText(layoutText(screen), reference.string() + ".txt");
  const PictureTolerance tolerance{
      .distance = 32, .share = 0.0001, .lettering = letteringOf(screen, options)};
  EXPECT_TRUE(matchesPicture(calendar.pictureOf(shown), reference.string() + ".png", tolerance));
}

INSTANTIATE_TEST_SUITE_P(Gallery, CalendarPicture,
                         testing::ValuesIn(calendarScenes().begin(), calendarScenes().end()),
                         [](const auto& scene) {
                           std::string name = scene.param.name;
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

}  // namespace
}  // namespace phone
