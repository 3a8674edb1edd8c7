#include "phone/calendarstore/ics/ics_reader.h"

#include <array>
#include <utility>

namespace phone {

namespace {

constexpr std::size_t kBufferSize = 256UL * 1024;
/// Longer lines are no calendar's, and one without an end must not fill the memory.
constexpr std::size_t kLongestLine = 64UL * 1024 * 1024;

std::string describe(const std::filesystem::path& file, std::size_t line, const std::string& reason) {
  return file.string() + (line == 0 ? "" : ":" + std::to_string(line)) + ": " + reason;
}

/// A device could go on for ever; a pipe ends with the one who writes.
void requireReadable(const std::filesystem::path& file) {
  using Type = std::filesystem::file_type;
  std::error_code error;
  const Type type = std::filesystem::status(file, error).type();
  if (type == Type::regular || type == Type::fifo || type == Type::socket) return;
  if (type == Type::not_found) throw IcsError(file, 0, "there is no such file");
  throw IcsError(file, 0, error ? error.message() : "this is neither a file nor a pipe");
}

/// Reads up to the next line feed or, of a line that is too long, somewhat more than the longest. False at
/// the end.
bool readLine(std::istream& stream, std::string& line) {
  std::array<char, 4096> part{};
  line.clear();
  while (line.size() <= kLongestLine) {
    stream.getline(part.data(), part.size());
    const auto got = static_cast<std::size_t>(stream.gcount());
    if (stream.good()) {
      // The line feed is counted, but not kept.
      line.append(part.data(), got - 1);
      return true;
    }
    line.append(part.data(), got);
    if (stream.eof() || stream.bad()) break;
    stream.clear();
  }
  return !stream.bad() && !(stream.eof() && line.empty());
}

}  // namespace

IcsError::IcsError(const std::filesystem::path& file, std::size_t line, const std::string& reason)
    : std::runtime_error(describe(file, line, reason)) {}

IcsReader::IcsReader(std::filesystem::path file) : file_(std::move(file)), buffer_(kBufferSize) {
  requireReadable(file_);
  stream_.rdbuf()->pubsetbuf(buffer_.data(), static_cast<std::streamsize>(buffer_.size()));
  stream_.open(file_, std::ios::binary);
  if (!stream_) throw IcsError(file_, 0, "the file cannot be opened");
}

bool IcsReader::readPhysicalLine() {
  if (!readLine(stream_, physical_)) {
    if (stream_.bad()) throw IcsError(file_, physicalNumber_, "the file cannot be read any further");
    return false;
  }
  ++physicalNumber_;
  bytesRead_ += physical_.size() + 1;
  if (physicalNumber_ == 1 && physical_.starts_with("\xef\xbb\xbf")) physical_.erase(0, 3);
  while (physical_.ends_with('\r')) physical_.pop_back();
  if (physical_.find('\0') != std::string::npos) {
    throw IcsError(file_, physicalNumber_,
                   "there is a zero byte here, so this is no calendar file in UTF-8; save it as UTF-8 text");
  }
  if (physical_.size() > kLongestLine) throw IcsError(file_, physicalNumber_, "the line is too long");
  return true;
}

/// What is wrong with the line ahead must not keep the present one back.
bool IcsReader::lookAhead() {
  try {
    return readPhysicalLine();
  } catch (const IcsError& failure) {
    failure_ = failure;
    return false;
  }
}

bool IcsReader::next() {
  do {
    if (failure_) throw IcsError(*failure_);
    if (!ahead_ && !readPhysicalLine()) return false;
    std::swap(line_, physical_);
    number_ = physicalNumber_;
    while ((ahead_ = lookAhead()) && !physical_.empty() &&
           (physical_.front() == ' ' || physical_.front() == '\t')) {
      line_.append(physical_, 1);
      if (line_.size() > kLongestLine) throw IcsError(file_, number_, "the line is too long");
    }
  } while (line_.find_first_not_of(" \t") == std::string::npos);
  return true;
}

}  // namespace phone
