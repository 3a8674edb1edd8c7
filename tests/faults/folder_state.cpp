#include "tests/faults/folder_state.h"

#include <fstream>
#include <iterator>
#include <plist/plist.h>
#include <regex>

#include "phone/calendarstore/database/sqlite.h"

namespace phone {

namespace {

namespace fs = std::filesystem;

std::string bytesOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::string> firstColumn(Connection& database, const std::string& sql) {
  Statement query(database.handle(), sql.c_str());
  std::vector<std::string> texts;
  while (query.step()) texts.push_back(query.text(0));
  return texts;
}

/// Every row of every table, but for the times of change.
std::string databaseText(const fs::path& file) {
  Connection database(file);
  const auto problems = firstColumn(database, "PRAGMA integrity_check");
  if (problems != std::vector<std::string>{"ok"}) throw DatabaseError(problems.front());
  const auto selections = firstColumn(
      database,
      R"(SELECT 'SELECT ' || quote(t.name) || group_concat(' || ''|'' || quote("' || c.name || '")', '') ||
                ' FROM ' || t.name || ' ORDER BY 1'
         FROM sqlite_master t, pragma_table_info(t.name) c
         WHERE t.type = 'table' AND c.name <> 'modified' GROUP BY t.name)");
  std::string text;
  for (const std::string& selection : selections) {
    for (const std::string& row : firstColumn(database, selection)) text += row + "\n";
  }
  return text;
}

void requirePropertyList(const std::string& content) {
  plist_t parsed = nullptr;
  plist_from_xml(content.data(), static_cast<std::uint32_t>(content.size()), &parsed);
  if (parsed == nullptr) throw std::runtime_error("no whole property list");
  plist_free(parsed);
}

std::string contentOf(const fs::path& file) {
  if (file.extension() == ".sqlitedb") return withoutIdentifiers(databaseText(file));
  std::string bytes = bytesOf(file);
  if (file.extension() != ".plist") return bytes;
  requirePropertyList(bytes);
  return withoutIdentifiers(bytes);
}

/// The files below the folder. Opening a database removes the journal of a dead process, so it comes first.
FolderState contents(const fs::path& folder, std::vector<std::string>& damaged) {
  FolderState state;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
    const std::string name = entry.path().lexically_relative(folder);
    if (entry.is_directory()) state[name + "/"];
    if (!entry.is_regular_file()) continue;
    try {
      state[name] = contentOf(entry.path());
    } catch (const std::exception& error) {
      damaged.push_back(name + ": " + error.what());
    }
  }
  return state;
}

}  // namespace

std::string withoutIdentifiers(const std::string& text) {
  static const std::regex identifier("[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}");
  return std::regex_replace(text, identifier, "(identifier)");
}

FolderState stateOf(const fs::path& folder, std::vector<std::string>& damaged) {
  std::vector<std::string> before;
  contents(folder, before);
  return contents(folder, damaged);
}

}  // namespace phone
