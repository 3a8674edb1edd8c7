#include "phone/app/number_option.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <cmath>

#include "phone/app/printable.h"

namespace phone {

namespace {

template <typename Number>
bool readsAs(std::string_view text, Number& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size();
}

/// The parser reads the text once more, and would take a zero in front for the mark of another base.
void checkWith(CLI::Option& option, const std::string& range, std::function<bool(std::string&)> normalize) {
  option.transform(CLI::Validator(
      [range, normalize = std::move(normalize)](std::string& typed) {
        return normalize(typed) ? std::string() : inQuotes(typed) + " is no " + range;
      },
      ""));
}

std::string shortText(double number) {
  std::ostringstream text;
  text << number;
  return text.str();
}

}  // namespace

void requireWholeNumber(CLI::Option& option, long lowest, long highest) {
  const std::string range = "whole number from " + std::to_string(lowest) + " to " + std::to_string(highest);
  checkWith(option, range, [lowest, highest](std::string& typed) {
    long number = 0;
    if (!readsAs(typed, number) || number < lowest || number > highest) return false;
    typed = std::to_string(number);
    return true;
  });
}

void requireNumber(CLI::Option& option, double lowest, double highest) {
  checkWith(option, "number from " + shortText(lowest) + " to " + shortText(highest),
            [lowest, highest](const std::string& typed) {
              const std::optional<double> number = decimalNumber(typed);
              return number && *number >= lowest && *number <= highest;
            });
}

std::optional<double> decimalNumber(std::string_view text) {
  double number = 0;
  if (!readsAs(text, number) || !std::isfinite(number)) return std::nullopt;
  return number;
}

}  // namespace phone
