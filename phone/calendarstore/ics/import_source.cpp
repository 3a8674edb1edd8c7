#include "phone/calendarstore/ics/import_source.h"

#include <algorithm>
#include <fstream>
#include <set>
#include <sys/stat.h>

#include "phone/calendarstore/ics/ics_reader.h"
#include "phone/calendarstore/ics/utf8.h"

namespace phone {

namespace {

namespace fs = std::filesystem;

bool isHidden(const fs::path& path) { return path.filename().native().starts_with('.'); }

bool isCalendarFile(const fs::directory_entry& entry) {
  std::string extension = entry.path().extension();
  std::transform(extension.begin(), extension.end(), extension.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; });
  return extension == ".ics" && !isHidden(entry.path()) && entry.is_regular_file();
}

/// In an order that does not depend on the file system.
template <typename Predicate>
std::vector<fs::path> entriesOf(const fs::path& folder, Predicate wanted) {
  std::vector<fs::path> found;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    if (wanted(*entry)) found.push_back(entry->path());
  }
  if (error) throw IcsError(folder, 0, "the folder cannot be read (" + error.message() + ")");
  std::sort(found.begin(), found.end());
  return found;
}

/// The first line of a small file beside the calendar; empty if there is none.
std::string noteIn(const fs::path& file) {
  constexpr std::size_t kLongestNote = 1000;
  if (!fs::is_regular_file(file)) return {};
  std::ifstream stream(file, std::ios::binary);
  std::string line(kLongestNote, '\0');
  stream.read(line.data(), static_cast<std::streamsize>(line.size()));
  line.resize(static_cast<std::size_t>(stream.gcount()));
  line.resize(std::min(line.find_first_of(std::string_view("\r\n\0", 3)), line.size()));
  return toUtf8(line);
}

ImportSource folderSource(const fs::path& folder) {
  ImportSource source{.files = entriesOf(folder, isCalendarFile)};
  source.name = noteIn(folder / "displayname");
  source.isNamedByUser = !source.name.empty();
  if (!source.isNamedByUser) source.name = toUtf8(folder.filename().native());
  source.color = noteIn(folder / "color");
  return source;
}

/// What comes through a pipe has no name of its own.
ImportSource streamSource(const fs::path& stream) { return {.files = {stream}, .name = "Calendar"}; }

bool isStream(const fs::path& path) {
  std::error_code error;
  const fs::file_type type = fs::status(path, error).type();
  return type == fs::file_type::fifo || type == fs::file_type::socket;
}

std::vector<ImportSource> sourcesAt(const fs::path& path) {
  if (path == "-") return {streamSource("/dev/stdin")};
  if (isStream(path)) return {streamSource(path)};
  // "calendars/" and "." have names, too.
  fs::path full = fs::absolute(path).lexically_normal();
  if (!full.has_filename()) full = full.parent_path();
  if (!fs::is_directory(full)) return {{.files = {path}, .name = toUtf8(full.stem().native())}};

  std::vector<ImportSource> sources{folderSource(full)};
  if (!sources.front().files.empty()) return sources;
  sources.clear();
  const auto isFolder = [](const fs::directory_entry& entry) {
    return entry.is_directory() && !isHidden(entry.path());
  };
  for (const fs::path& folder : entriesOf(full, isFolder)) {
    ImportSource source = folderSource(folder);
    if (!source.files.empty()) sources.push_back(std::move(source));
  }
  if (sources.empty()) throw IcsError(path, 0, "there is no calendar file (.ics) in this folder");
  return sources;
}

/// Which files there have been, by more than their names.
class KnownFiles {
 public:
  /// False for one that was added before. What is not there is none of them.
  bool add(const fs::path& file) {
    struct stat status {};
    return stat(file.c_str(), &status) != 0 || known_.emplace(status.st_dev, status.st_ino).second;
  }

 private:
  std::set<std::pair<dev_t, ino_t>> known_;
};

}  // namespace

std::vector<ImportSource> findSources(const std::vector<fs::path>& paths) {
  std::vector<ImportSource> sources;
  KnownFiles files;
  for (const fs::path& path : paths) {
    for (ImportSource& source : sourcesAt(path)) {
      std::erase_if(source.files, [&files](const fs::path& file) { return !files.add(file); });
      if (!source.files.empty()) sources.push_back(std::move(source));
    }
  }
  return sources;
}

std::uint64_t totalSize(const std::vector<ImportSource>& sources) {
  std::uint64_t total = 0;
  for (const ImportSource& source : sources) {
    for (const fs::path& file : source.files) {
      std::error_code error;
      const std::uint64_t size = fs::file_size(file, error);
      if (!error) total += size;
    }
  }
  return total;
}

}  // namespace phone
