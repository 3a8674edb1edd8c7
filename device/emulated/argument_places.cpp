#include "device/emulated/argument_places.h"

#include <cstring>
#include <stdexcept>
#include <string>

namespace device {

namespace {

struct Measure {
  unsigned words;
  /// Whether Linux starts it at an even word.
  bool isWide;
};

/// Reads one type after the other.
class EncodingReader {
 public:
  explicit EncodingReader(const char* encoding) : whole_(encoding), at_(encoding) {}

  bool atEnd() const { return *at_ == '\0'; }

  Measure next() {
    const Measure measure = type();
    // The compiler's own encodings say offsets, too.
    at_ += std::strspn(at_, "+-0123456789");
    return measure;
  }

 private:
  Measure type() {
    at_ += std::strspn(at_, "rnNoORV");
    switch (const char kind = *at_++) {
      case 'v':
        return {0, false};
      case 'd':
      case 'q':
      case 'Q':
        return {2, true};
      case '{':
        return members();
      case '@':
        skipClassName();
        return {1, false};
      case '^':
        type();
        return {1, false};
      default:
        if (kind == '\0' || std::strchr("cCsSiIlLfB#:*?", kind) == nullptr) refuse();
        return {1, false};
    }
  }

  /// A struct, in which every member has words of its own.
  Measure members() {
    const std::size_t name = std::strcspn(at_, "=}");
    at_ += name + (at_[name] == '=' ? 1 : 0);
    Measure sum{0, false};
    while (*at_ != '}') {
      if (*at_ == '\0' || std::strchr("cCsSB", *at_) != nullptr) refuse();
      const Measure member = type();
      // Under Linux there could be a gap before it.
      if (member.isWide && sum.words % 2 != 0) refuse();
      sum = {sum.words + member.words, sum.isWide || member.isWide};
    }
    ++at_;
    return sum;
  }

  /// An object's type may say its class, or that it is a block.
  void skipClassName() {
    if (*at_ == '?') ++at_;
    if (*at_ != '"') return;
    const char* const end = std::strchr(at_ + 1, '"');
    if (end == nullptr) refuse();
    at_ = end + 1;
  }

  [[noreturn]] void refuse() const {
    throw std::runtime_error(std::string("the type encoding ") + whole_ +
                             " holds what no method of a plug-in has");
  }

  const char* whole_;
  const char* at_;
};

}  // namespace

ArgumentPlaces argumentPlaces(const char* encoding) {
  ArgumentPlaces places;
  EncodingReader reader(encoding);
  const bool isStruct = encoding[std::strspn(encoding, "rnNoORV")] == '{';
  const Measure result = reader.next();
  if (isStruct && result.words < 2) throw std::runtime_error("a struct of one word is returned in two ways");
  places.isResultInMemory = isStruct;
  unsigned next = 0;
  const auto place = [&](const Measure& argument) {
    if (argument.isWide) next += next % 2;
    for (unsigned i = 0; i < argument.words; ++i) places.here.push_back(next++);
  };
  if (isStruct) place({1, false});
  while (!reader.atEnd()) place(reader.next());
  return places;
}

std::vector<unsigned> formatArgumentWords(const char* format) {
  std::vector<unsigned> arguments;
  while ((format = std::strchr(format, '%')) != nullptr) {
    ++format;
    // Flags, width and precision, of which a star is an argument; then how long the number is.
    for (; *format != '\0' && std::strchr("-+ #0123456789.*'", *format) != nullptr; ++format) {
      if (*format == '*') arguments.push_back(1);
    }
    const std::size_t length = std::strspn(format, "hlqjztL");
    const std::string lengths(format, length);
    format += length;
    if (*format == '\0') break;
    const bool isNumber = std::strchr("aAeEfFgG", *format) != nullptr;
    const bool isLong = lengths == "ll" || lengths == "q" || lengths == "j";
    if (*format != '%') arguments.push_back(isNumber || isLong ? 2 : 1);
    ++format;
  }
  return arguments;
}

}  // namespace device
