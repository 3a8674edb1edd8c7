#include "phone/foundation/phone_root.h"

#include <array>

#include "phone/foundation/foundation.h"

namespace phone {

namespace {

bool isIn(std::string_view path, std::string_view folder) {
  return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

}  // namespace

std::filesystem::path pathOnThisMachine(std::string_view phonePath) {
  if (!phonePath.starts_with('/')) return phonePath;
  std::string path = std::filesystem::path(phonePath).lexically_normal().string();
  // /private/var and /var are one place on the phone.
  if (isIn(path, "/private/var")) path.erase(0, std::string_view("/private").size());
  if (!isIn(path, "/var/mobile") && !isIn(path, "/Applications")) return phonePath;
  return hostOptions().root / path.substr(1);
}

}  // namespace phone
