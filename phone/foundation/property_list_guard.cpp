#include "phone/foundation/property_list_guard.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <vector>

namespace phone {

namespace {

/// What a list may unfold into, in bytes.
constexpr std::uint64_t kLargestUnfolding = 128ULL << 20;
/// About what a value costs besides its own bytes.
constexpr std::uint64_t kCostOfValue = 64;

[[noreturn]] void failDepth() { throw std::runtime_error("it is nested too deeply"); }
[[noreturn]] void failDamaged() { throw std::runtime_error("it is damaged"); }

/// Position behind the next `end`, or the end of the text.
std::size_t behind(std::string_view text, std::size_t from, std::string_view end) {
  const std::size_t found = text.find(end, from);
  return found == std::string_view::npos ? text.size() : found + end.size();
}

void guardXml(std::string_view text) {
  // The list's own element and the text of a leaf count as levels too.
  constexpr int kLevelsOfElements = kMaximumDepth + 2;
  int depth = 0;
  std::size_t at = 0;
  while ((at = text.find('<', at)) != std::string_view::npos) {
    const std::string_view rest = text.substr(at);
    if (rest.starts_with("<!--")) {
      at = behind(text, at, "-->");
    } else if (rest.starts_with("<![CDATA[")) {
      at = behind(text, at, "]]>");
    } else if (rest.starts_with("<?")) {
      at = behind(text, at, "?>");
    } else {
      const std::size_t end = behind(text, at, ">");
      const std::string_view tag = text.substr(at, end - at);
      if (tag.starts_with("</")) {
        --depth;
      } else if (tag.starts_with("<!")) {
        // No property list declares anything of its own, and such declarations could hide elements.
        if (tag.find('[') != std::string_view::npos) throw std::runtime_error("it declares entities");
      } else if (!tag.ends_with("/>") && ++depth > kLevelsOfElements) {
        failDepth();
      }
      at = end;
    }
  }
}

/// Walks a binary list along its references, each object once.
class BinaryWalk {
 public:
  explicit BinaryWalk(std::string_view bytes) : bytes_(bytes) {
    constexpr std::size_t kTrailerSize = 32;
    if (bytes.size() < kTrailerSize) failDamaged();
    const std::size_t trailer = bytes.size() - kTrailerSize;
    offsetSize_ = number(trailer + 6, 1);
    referenceSize_ = number(trailer + 7, 1);
    const std::uint64_t count = number(trailer + 8, 8);
    root_ = number(trailer + 16, 8);
    offsetTable_ = number(trailer + 24, 8);
    if (offsetSize_ == 0 || referenceSize_ == 0 || count > bytes.size()) failDamaged();
    measured_.resize(count);
  }

  void guard() { measure(root_, 1); }

 private:
  /// What an object unfolds into.
  struct Measure {
    std::uint64_t cost = 0;
    int height = 0;
    bool open = true;
  };

  /// A number of that many bytes, the most significant first.
  std::uint64_t number(std::uint64_t place, std::uint64_t size) const {
    if (size > 8 || place > bytes_.size() || size > bytes_.size() - place) failDamaged();
    std::uint64_t value = 0;
    for (const char byte : bytes_.substr(place, size)) value = value << 8 | static_cast<unsigned char>(byte);
    return value;
  }

  /// The count in an object's head; `place` moves behind the head.
  std::uint64_t countAt(std::uint64_t& place) const {
    const std::uint64_t low = number(place++, 1) & 0xF;
    if (low != 0xF) return low;
    const std::uint64_t size = 1ULL << (number(place++, 1) & 0xF);
    const std::uint64_t count = number(place, size);
    place += size;
    return count;
  }

  Measure measure(std::uint64_t index, int depth) {
    if (index >= measured_.size()) failDamaged();
    if (const std::optional<Measure>& known = measured_[index]; known) {
      if (known->open) throw std::runtime_error("it holds itself");
      if (depth + known->height > kMaximumDepth) failDepth();
      return *known;
    }
    if (depth > kMaximumDepth) failDepth();
    measured_[index] = Measure{};
    const Measure measure = unfold(number(offsetTable_ + index * offsetSize_, offsetSize_), depth);
    measured_[index] = measure;
    return measure;
  }

  Measure unfold(std::uint64_t place, int depth) {
    Measure sum{.cost = kCostOfValue, .height = 0, .open = false};
    const std::uint64_t kind = number(place, 1) >> 4;
    switch (kind) {
      case 0x4:
      case 0x5:
      case 0x6:
        sum.cost += countAt(place) * (kind == 0x6 ? 2 : 1);
        break;
      case 0xA:
      case 0xC:
      case 0xD: {
        const std::uint64_t references = countAt(place) * (kind == 0xD ? 2 : 1);
        for (std::uint64_t i = 0; i < references; ++i) {
          const Measure part = measure(number(place + i * referenceSize_, referenceSize_), depth + 1);
          sum.cost += part.cost;
          sum.height = std::max(sum.height, part.height + 1);
          if (sum.cost > kLargestUnfolding) break;
        }
        break;
      }
      default:
        break;
    }
    if (sum.cost > kLargestUnfolding) throw std::runtime_error("it is too large");
    return sum;
  }

  std::string_view bytes_;
  std::uint64_t offsetSize_ = 0;
  std::uint64_t referenceSize_ = 0;
  std::uint64_t root_ = 0;
  std::uint64_t offsetTable_ = 0;
  std::vector<std::optional<Measure>> measured_;
};

}  // namespace

void guardStructure(std::string_view bytes) {
  if (isBinaryPropertyList(bytes)) {
    BinaryWalk(bytes).guard();
  } else {
    guardXml(bytes);
  }
}

}  // namespace phone
