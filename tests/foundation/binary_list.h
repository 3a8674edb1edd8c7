// Builds binary property lists byte by byte, good ones and bad ones.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace phone {

/// `size` bytes of the number, the most significant first.
inline std::string bigEndian(std::uint64_t value, int size) {
  std::string bytes;
  for (int shift = 8 * (size - 1); shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift & 0xFF);
  return bytes;
}

/// The objects as a binary property list whose root is the first of them. References take four bytes.
inline std::string binaryList(const std::vector<std::string>& objects) {
  std::string bytes = "bplist00";
  std::string offsets;
  for (const std::string& object : objects) {
    offsets += bigEndian(bytes.size(), 4);
    bytes += object;
  }
  const std::uint64_t table = bytes.size();
  return bytes + offsets + std::string(6, '\0') + "\x04\x04" + bigEndian(objects.size(), 8) +
         bigEndian(0, 8) + bigEndian(table, 8);
}

/// An array or dictionary (`head` 0xA0 or 0xD0 plus the count) that refers to those objects.
inline std::string container(int head, const std::vector<std::uint64_t>& references) {
  std::string bytes(1, static_cast<char>(head));
  for (const std::uint64_t reference : references) bytes += bigEndian(reference, 4);
  return bytes;
}

}  // namespace phone
