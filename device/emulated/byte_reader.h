// Reads numbers and texts of a library's file one after the other, never beyond its end.
#pragma once

#include <algorithm>
#include <bit>
#include <cstring>
#include <string_view>
#include <type_traits>

#include "device/emulated/library_file.h"

namespace device {

static_assert(std::endian::native == std::endian::little);

/// A name out of a file as it can stand in a line for people: anything can be in it.
inline std::string printable(std::string_view name) {
  std::string text(name);
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c < ' ' || c > '~'; }, '?');
  return text;
}

class ByteReader {
 public:
  /// `what` names the part for people.
  ByteReader(Bytes bytes, const char* what) : bytes_(bytes), what_(what) {}

  bool atEnd() const { return position_ == bytes_.size(); }
  std::size_t position() const { return position_; }
  void moveTo(std::size_t position) {
    if (position > bytes_.size()) end();
    position_ = position;
  }
  void skip(std::size_t count) { take(count); }

  /// A number or plain struct as it lies in memory.
  template <typename Type>
  Type read() {
    static_assert(std::is_trivially_copyable_v<Type>);
    Type value;
    std::memcpy(&value, take(sizeof(Type)).data(), sizeof(Type));
    return value;
  }

  std::uint8_t byte() { return read<std::uint8_t>(); }

  /// An address of that many bytes, 4 or 8.
  std::uint64_t address(std::size_t size) {
    return size == sizeof(std::uint64_t) ? read<std::uint64_t>() : read<std::uint32_t>();
  }

  /// Seven bits a byte, the lowest first.
  std::uint64_t uleb() {
    std::uint64_t value = 0;
    for (unsigned shift = 0;; shift += 7) {
      const std::uint8_t next = byte();
      const std::uint64_t bits = next & 0x7f;
      if (shift > 63 || (shift == 63 && bits > 1)) {
        throw BadLibrary(std::string(what_) + " holds a number of more than 64 bits");
      }
      value |= bits << shift;
      if ((next & 0x80) == 0) return value;
    }
  }

  /// The same with a sign.
  std::int64_t sleb() {
    std::uint64_t value = 0;
    unsigned shift = 0;
    std::uint8_t next = 0x80;
    for (; (next & 0x80) != 0; shift += 7) {
      if (shift > 63) throw BadLibrary(std::string(what_) + " holds a number of more than 64 bits");
      next = byte();
      value |= std::uint64_t{next & 0x7fU} << shift;
    }
    if (shift < 64 && (next & 0x40) != 0) value |= ~std::uint64_t{0} << shift;
    return static_cast<std::int64_t>(value);
  }

  /// A text that a zero byte ends. Borrowed: it lies in the file.
  std::string_view text() {
    const Bytes rest = bytes_.subspan(position_, std::min(bytes_.size() - position_, kMaxText));
    const auto zero = std::find(rest.begin(), rest.end(), std::byte{0});
    if (zero == rest.end()) {
      if (rest.size() < kMaxText) end();
      throw BadLibrary(std::string(what_) + " holds a name that does not end");
    }
    const auto length = static_cast<std::size_t>(zero - rest.begin());
    const Bytes characters = take(length + 1);
    return {reinterpret_cast<const char*>(characters.data()), length};
  }

 private:
  /// Longer than any name; a file can claim that each of its names is the whole rest of it.
  static constexpr std::size_t kMaxText = 4096;

  [[noreturn]] void end() const {
    throw BadLibrary(std::string(what_) + " runs past its end: the file is damaged");
  }

  Bytes take(std::size_t count) {
    if (count > bytes_.size() - position_) end();
    const Bytes taken = bytes_.subspan(position_, count);
    position_ += count;
    return taken;
  }

  Bytes bytes_;
  const char* what_;
  std::size_t position_ = 0;
};

}  // namespace device
