// Lock screens against their reference pictures, and their layout against the numbers kept beside them.
#include <gtest/gtest.h>

#include "phone/springboard/home_screen.h"
#include "phone/springboard/sb_lock_screen_notification_list_controller.h"
#include "phone/springboard/stock_icons.h"
#include "tests/foundation/temporary_folder.h"
#include "tests/pictures/calendar_scene.h"
#include "tests/pictures/reference.h"
#include "tests/pictures/scene.h"
#include "tests/support/built.h"

namespace phone {
namespace {

namespace fs = std::filesystem;

std::string settingElement(const std::string& value) {
  if (value == "on") return "<true/>";
  if (value == "off") return "<false/>";
  const bool isNumber = value.find_first_not_of("0123456789") == std::string::npos;
  return isNumber ? "<integer>" + value + "</integer>" : "<string>" + value + "</string>";
}

void writeSettings(const fs::path& root, const Scene& scene) {
  std::string entries;
  for (const auto& [key, value] : scene.settings) {
    entries += "<key>" + std::string(key) + "</key>" + settingElement(value);
  }
  writePreferences(root, "org.quenmark.tavimoprefs.plist", entries);
  // Without the Calendar app's preferences no calendar counts as shown.
  writePreferences(root, "com.apple.mobilecal.plist", "");
}

std::string beginningOf(const std::string& title) {
  constexpr std::size_t kLongest = 60;
  return title.size() <= kLongest ? title : std::to_string(title.size()) + " bytes";
}

/// Underlays, then every row with its parts, a line each.
std::string layoutText(HomeScreen& homeScreen) {
  std::string text = "underlays:";
  for (const std::string& requester : homeScreen.underlays()) text += " " + requester;
  text += "\n";
  for (const ListRow& row : homeScreen.rows()) {
    text +=
        "\n" + row.identifier + " \"" + beginningOf(row.title) + "\" " + rectText(row.frame.value()) + "\n";
    if (!row.cell) continue;
    const CellLayout& cell = *row.cell;
    text += "  title " + rectText(cell.title) + "\n  date \"" + cell.dateText + "\" " + rectText(cell.date) +
            "\n  subtitle " + rectText(cell.subtitle) + "\n  icon " + rectText(cell.icon) + "\n  alpha " +
            pointsText(cell.contentAlpha) + (cell.drawsSeparator ? "" : ", no separator") + "\n";
  }
  return text;
}

/// Where letters stand: clock, day and hint, and the lines of the rows that are in sight.
std::vector<PixelRect> letteringOf(HomeScreen& homeScreen, const HostOptions& options) {
  const auto inPixels = [&](CGRect rect) { return pixelsAround(rect, options.screenScale); };
  const CGRect list = listViewOf(homeScreen.listController())->frame();
  const double listBottom = list.origin.y + list.size.height;
  std::vector<PixelRect> lettering = {
      inPixels({{0, 0}, {options.screenWidth, list.origin.y}}),
      inPixels({{0, listBottom}, {options.screenWidth, options.screenHeight - listBottom}})};
  for (const ListRow& row : homeScreen.rows()) {
    if (!row.cell) continue;
    for (CGRect part : {row.cell->title, row.cell->date, row.cell->subtitle, row.cell->message}) {
      part.origin.x += row.frame->origin.x;
      part.origin.y += row.frame->origin.y;
      lettering.push_back(inPixels(part));
    }
  }
  return lettering;
}

class LockScreenPicture : public testing::TestWithParam<Scene> {};

TEST_P(LockScreenPicture, IsAsItWas) {
  const Scene& scene = GetParam();
  const TemporaryFolder folder;
  installStockIcons(folder.path());
  writeSettings(folder.path(), scene);
  importInto(folder.path(), scene.calendars);
  const HostOptions options{
      .root = folder.path(), .release = scene.release, .now = kSceneSeconds, .timeZone = kSceneTimeZone};
  auto homeScreen = HomeScreen::boot(options, pluginLibrary());
  for (const auto& [title, text] : scene.notifications) {
    homeScreen.postNotification({.title = title, .text = text});
  }
  homeScreen.load();
  if (scene.scrolledTo > 0) homeScreen.scrollTo(scene.scrolledTo);
  const fs::path reference = referenceFolder("lock_screen") / scene.name;
  expectText(layoutText(homeScreen), reference.string() + ".txt");
  // Everything but letters is drawn by Cairo alone: at most the smoothed edges of a few icons may differ.
  const PictureTolerance tolerance{
      .distance = 32, .share = 0.0001, .lettering = letteringOf(homeScreen, options)};
  EXPECT_TRUE(matchesPicture(homeScreen.picture(), reference.string() + ".png", tolerance));
}

std::string sceneName(const testing::TestParamInfo<Scene>& scene) {
  std::string name = scene.param.name;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Gallery, LockScreenPicture, testing::ValuesIn(scenes().begin(), scenes().end()),
                         sceneName);

TEST(Gallery, ShowsEveryScene) {
  expectText(galleryPage() + calendarGallery(), sourceFolder() / "docs/gallery.md");
}

}  // namespace
}  // namespace phone
