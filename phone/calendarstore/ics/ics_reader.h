// Reads a calendar file line by line, so that the size of the file does not show in memory.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace phone {

/// A calendar file that cannot be read: "file:line: reason", in words for people. Line 0: the file as a
/// whole.
class IcsError : public std::runtime_error {
 public:
  IcsError(const std::filesystem::path& file, std::size_t line, const std::string& reason);
};

/// Lines as the format means them: folded ones are put together again, ends of line and a byte order mark are
/// gone, empty ones are left out.
class IcsReader {
 public:
  /// Throws IcsError when the file cannot be opened.
  explicit IcsReader(std::filesystem::path file);

  /// Goes to the next line; false after the last. Throws IcsError for what is no text.
  bool next();

  const std::string& line() const { return line_; }
  /// The number of its first physical line, counted from 1.
  std::size_t number() const { return number_; }
  std::uint64_t bytesRead() const { return bytesRead_; }
  const std::filesystem::path& file() const { return file_; }

 private:
  bool readPhysicalLine();
  bool lookAhead();

  std::filesystem::path file_;
  std::ifstream stream_;
  std::vector<char> buffer_;
  std::string line_;
  std::string physical_;
  std::size_t number_ = 0;
  std::size_t physicalNumber_ = 0;
  std::uint64_t bytesRead_ = 0;
  std::optional<IcsError> failure_;
  bool ahead_ = false;  // physical_ holds the line after line_.
};

}  // namespace phone
