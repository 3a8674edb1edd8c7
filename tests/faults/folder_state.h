// What a folder with a phone in it holds, in a form in which two runs of the same verb can be compared.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace phone {

/// Every folder and file by its name below the folder, files with their content; a calendar database as the
/// text of its rows. What is random (identifiers) or the clock's (times of change) is left out.
using FolderState = std::map<std::string, std::string>;

/// Reads the folder as the next process does: a database that a dead process left with a journal is brought
/// back first. Files that are damaged, such as a property list without an end, are named in `damaged`.
FolderState stateOf(const std::filesystem::path& folder, std::vector<std::string>& damaged);

/// The text without identifiers that are new in each run.
std::string withoutIdentifiers(const std::string& text);

}  // namespace phone
