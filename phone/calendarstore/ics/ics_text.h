// Text values of calendar files.
#pragma once

#include <string>
#include <string_view>

namespace phone {

/// The parameter of an EXRULE with the wall time from which the rule counts, when that is not the start of
/// its event: events that were a part of a longer series have such rules, and the format has no other place
/// for it.
inline constexpr const char* kExceptionRuleStart = "X-PHONE-DTSTART";

/// The text that a value stands for: \n is a line break, and a backslash before anything else is dropped.
/// (libical's own function of this kind leaves line breaks out.)
std::string unescapedText(std::string_view value);

/// The value that stands for a text: unescapedText() gives the text back, except for carriage returns, which
/// no line of a file can hold.
std::string escapedText(std::string_view text);

/// The line with its end, folded as the format wants it.
std::string foldedLine(std::string_view line);

/// The line of a text property, folded. (libical escapes more than the format does, and so more than others
/// read.)
std::string textLine(std::string_view name, std::string_view text);

}  // namespace phone
