#include "phone/calendarstore/database/identifiers.h"

#include <charconv>
#include <cstdio>
#include <random>

namespace phone {

namespace {

constexpr std::string_view kReplaced = "/RID=";
constexpr std::string_view kReplacedAndLater = "/RANGE=";

/// A 64-bit FNV-1a hash, started from `basis`.
std::uint64_t hash(std::string_view text, std::uint64_t basis) {
  for (const unsigned char byte : text) basis = (basis ^ byte) * 0x100000001b3ULL;
  return basis;
}

std::string inUuidForm(std::uint64_t high, std::uint64_t low) {
  char text[37];
  std::snprintf(text, sizeof text, "%08X-%04X-%04X-%04X-%012llX", static_cast<unsigned>(high >> 32),
                static_cast<unsigned>((high >> 16) & 0xffff), static_cast<unsigned>(high & 0xffff),
                static_cast<unsigned>(low >> 48), static_cast<unsigned long long>(low & 0xffff'ffff'ffffULL));
  return text;
}

bool isPlain(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' || c == '.' ||
         c == '_' || c == '~' || c == '@';
}

int hexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

}  // namespace

std::string calendarIdentifier(std::string_view title) {
  return inUuidForm(hash(title, 0xcbf29ce484222325ULL), hash(title, 0x9ae16a3b2f90404fULL));
}

std::string randomIdentifier() {
  std::random_device random;
  const auto word = [&random] { return (std::uint64_t{random()} << 32) | random(); };
  const std::uint64_t high = word();
  return inUuidForm(high, word());
}

std::string percentEncoded(std::string_view text) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string encoded;
  encoded.reserve(text.size());
  for (const char c : text) {
    if (isPlain(c)) {
      encoded += c;
    } else {
      const auto byte = static_cast<unsigned char>(c);
      encoded += {'%', kDigits[byte >> 4], kDigits[byte & 15]};
    }
  }
  return encoded;
}

std::string percentDecoded(std::string_view text) {
  std::string decoded;
  decoded.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const int high = text[i] == '%' && i + 2 < text.size() ? hexValue(text[i + 1]) : -1;
    const int low = high < 0 ? -1 : hexValue(text[i + 2]);
    if (low < 0) {
      decoded += text[i];
    } else {
      decoded += static_cast<char>(high * 16 + low);
      i += 2;
    }
  }
  return decoded;
}

std::string eventIdentifier(std::string_view calendarIdentifier, std::string_view uid,
                            const std::optional<ReplacedRepetition>& replaces) {
  std::string identifier = percentEncoded(calendarIdentifier) + ":" + percentEncoded(uid);
  if (replaces) {
    identifier += replaces->andLater ? kReplacedAndLater : kReplaced;
    identifier += std::to_string(replaces->value);
  }
  return identifier;
}

std::optional<EventName> parseEventIdentifier(std::string_view identifier) {
  const std::size_t colon = identifier.find(':');
  if (colon == std::string_view::npos || colon == 0) return std::nullopt;
  EventName name{percentDecoded(identifier.substr(0, colon)), {}, std::nullopt, false};
  std::string_view uid = identifier.substr(colon + 1);
  for (const std::string_view word : {kReplaced, kReplacedAndLater}) {
    const std::size_t mark = uid.find(word);
    if (mark == std::string_view::npos) continue;
    const std::string_view digits = uid.substr(mark + word.size());
    Seconds seconds = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), seconds);
    if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
    name.replaced = seconds;
    name.andLater = word == kReplacedAndLater;
    uid = uid.substr(0, mark);
  }
  if (uid.empty()) return std::nullopt;
  name.uid = percentDecoded(uid);
  return name;
}

std::string externalAddress(std::string_view calendarIdentifier, std::string_view uid, Seconds start) {
  return "x-apple-calevent://" + percentEncoded(calendarIdentifier) + "/" + percentEncoded(uid) +
         "?o=" + std::to_string(start) + ".0";
}

}  // namespace phone
