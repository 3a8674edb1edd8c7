// The scenes that pictures are kept of: a calendar, settings, and what else happens on the phone. The gallery
// in docs/ is made from the same table.
#pragma once

#include <ostream>
#include <span>
#include <string>
#include <vector>

namespace phone {

struct Scene {
  /// Names its picture.
  const char* name;
  /// What it shows, for the gallery.
  const char* caption;
  /// As `phone settings set` takes them: key and value.
  std::vector<std::pair<const char*, const char*>> settings = {};
  /// Files in tests/pictures/calendars.
  std::vector<const char*> calendars = {"Work.ics", "Home.ics"};
  /// The phone's own notifications, title and text.
  std::vector<std::pair<const char*, const char*>> notifications = {};
  const char* release = "8.4";
  /// The row that is scrolled to, counted from 0.
  std::size_t scrolledTo = 0;
};

inline std::ostream& operator<<(std::ostream& out, const Scene& scene) { return out << scene.name; }

std::span<const Scene> scenes();

/// Friday 7 March 2014, 09:41 in Berlin: the time of every scene, as the command takes it and in seconds
/// since 1 January 2001 UTC.
inline constexpr const char* kSceneTime = "2014-03-07T09:41";
inline constexpr const char* kSceneTimeZone = "Europe/Berlin";
inline constexpr double kSceneSeconds = 415'874'460;

/// The gallery page that shows all scenes, as Markdown.
std::string galleryPage();

}  // namespace phone
