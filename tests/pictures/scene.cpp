#include "tests/pictures/scene.h"

namespace phone {

namespace {

constexpr std::pair<const char*, const char*> kMessage = {"Anna", "Lunch at one? The place by the river."};

std::vector<Scene> makeScenes() {
  return {
      {.name = "defaults", .caption = "As it comes: the calendar's icon, the time behind the title."},
      {.name = "dot", .caption = "A dot in the calendar's colour.", .settings = {{"iconFile", "DOT"}}},
      {.name = "dot-large", .caption = "A large dot.", .settings = {{"iconFile", "DOT_LARGE"}}},
      {.name = "no-icon", .caption = "No icon.", .settings = {{"iconFile", "NONE"}}},
      {.name = "right-aligned-dates",
       .caption = "Times at the right edge.",
       .settings = {{"rightAlignedDate", "on"}}},
      {.name = "locations-equal-rows",
       .caption = "Places below the titles; rows without a place are as high as the others.",
       .settings = {{"displayLocation", "on"}, {"sameHeightRows", "on"}}},
      {.name = "locations-unequal-rows",
       .caption = "Places below the titles; rows without a place are lower.",
       .settings = {{"displayLocation", "on"}, {"sameHeightRows", "off"}}},
      {.name = "calendar-coloured-titles",
       .caption = "Titles in the colours of their calendars.",
       .settings = {{"textColor", "999"}}},
      {.name = "sizes-and-colours",
       .caption = "Other sizes and colours, no separator lines.",
       .settings = {{"textColor", "6"},
                    {"textSize", "20"},
                    {"displayLocation", "on"},
                    {"subtitleTextColor", "7"},
                    {"subtitleTextSize", "12"},
                    {"dateTextColor", "3"},
                    {"dateTextSize", "10"},
                    {"showSeparatorLines", "off"}}},
      {.name = "blur-0-events-alone",
       .caption = "Blur mode 0: the wallpaper is always blurred behind the list.",
       .settings = {{"wallpaperBlurMode", "0"}}},
      {.name = "blur-0-with-notification",
       .caption = "Blur mode 0 with a notification of the phone's own.",
       .settings = {{"wallpaperBlurMode", "0"}},
       .notifications = {kMessage}},
      {.name = "blur-1-events-alone",
       .caption = "Blur mode 1: events alone stand on the clear wallpaper.",
       .settings = {{"wallpaperBlurMode", "1"}}},
      {.name = "blur-1-with-notification",
       .caption = "Blur mode 1: a notification of the phone's own brings the blur back.",
       .settings = {{"wallpaperBlurMode", "1"}},
       .notifications = {kMessage}},
      {.name = "blur-2-events-alone",
       .caption = "Blur mode 2: the wallpaper stays clear.",
       .settings = {{"wallpaperBlurMode", "2"}}},
      {.name = "blur-2-with-notification",
       .caption = "Blur mode 2: the wallpaper stays clear, whatever is listed.",
       .settings = {{"wallpaperBlurMode", "2"}},
       .notifications = {kMessage}},
      {.name = "long-title",
       .caption = "A long title is cut so that its time fits beside it.",
       .settings = {{"displayLocation", "on"}},
       .calendars = {"Long.ics"}},
      {.name = "sixteen-events", .caption = "Sixteen events.", .calendars = {"Sixteen.ics"}},
      {.name = "sixteen-events-scrolled",
       .caption = "Sixteen events, scrolled to the last.",
       .calendars = {"Sixteen.ics"},
       .scrolledTo = 15},
      {.name = "scripts",
       .caption = "Titles in several scripts and directions, an empty one and an endless one.",
       .settings = {{"displayLocation", "on"}, {"sameHeightRows", "off"}},
       .calendars = {"Scripts.ics"}},
      {.name = "ios-7",
       .caption = "The oldest release, with a notification of the phone's own.",
       .settings = {{"wallpaperBlurMode", "0"}, {"iconFile", "DOT"}},
       .notifications = {kMessage},
       .release = "7.1"},
      {.name = "ios-9",
       .caption = "The newest release, with a notification of the phone's own.",
       .settings = {{"wallpaperBlurMode", "0"}, {"iconFile", "DOT"}},
       .notifications = {kMessage},
       .release = "9.3"},
  };
}

}  // namespace

std::span<const Scene> scenes() {
  static const std::vector<Scene> all = makeScenes();
  return all;
}

std::string galleryPage() {
  std::string page =
      "# Gallery\n\n"
      "The lock screen under different settings, as `phone lockscreen --png` draws it. The pictures are "
      "those "
      "that\nthe tests compare with; see [tests/pictures](../tests/pictures/README.md) for how they are "
      "refreshed.\n\nEach picture is made from the calendars in `tests/pictures/calendars` by these "
      "commands, "
      "with the settings and\noptions named beside it:\n\n"
      "```sh\nphone create\nphone import tests/pictures/calendars/Work.ics "
      "tests/pictures/calendars/Home.ics\n"
      "phone lockscreen --now " +
      std::string(kSceneTime) + " --timezone " + kSceneTimeZone + " --png lock-screen.png\n```\n";
  for (const Scene& scene : scenes()) {
    page += "\n## " + std::string(scene.caption) + "\n\n";
    std::string commands;
    if (scene.calendars.size() == 1) {
      commands += "phone import tests/pictures/calendars/" + std::string(scene.calendars[0]) + "\n";
    }
    for (const auto& [key, value] : scene.settings) {
      commands += "phone settings set " + std::string(key) + " " + value + "\n";
    }
    std::string options;
    if (scene.release != std::string("8.4")) options += std::string(" --ios ") + scene.release;
    for (const auto& [title, text] : scene.notifications) {
      options += std::string(" --notification \"") + title + "|" + text + "\"";
    }
    if (scene.scrolledTo > 0) options += " --scroll " + std::to_string(scene.scrolledTo + 1);
    if (!options.empty()) commands += "phone lockscreen" + options + "\n";
    page += commands.empty() ? "No setting is changed.\n\n" : "```sh\n" + commands + "```\n\n";
    page += "<img src=\"../tests/pictures/lock_screen/" + std::string(scene.name) +
            ".png\" width=\"320\" alt=\"" + scene.caption + "\">\n";
  }
  return page;
}

}  // namespace phone
