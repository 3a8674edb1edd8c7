// Numbers that a user types: decimal, finite, inside bounds that are named when they are not kept.
#pragma once

#include <optional>
#include <string_view>

namespace CLI {
class Option;
}

namespace phone {

/// Lets the option take whole numbers from `lowest` to `highest` only.
void requireWholeNumber(CLI::Option& option, long lowest, long highest);

/// Lets the option take numbers from `lowest` to `highest` only.
void requireNumber(CLI::Option& option, double lowest, double highest);

/// The text as a number; none for anything else, and for what is not finite.
std::optional<double> decimalNumber(std::string_view text);

}  // namespace phone
