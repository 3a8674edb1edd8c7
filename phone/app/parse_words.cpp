#include "phone/app/parse_words.h"

#include <CLI/CLI.hpp>

namespace phone {

namespace {

std::string before(const std::string& text, const std::string& mark) {
  return text.substr(0, text.find(mark));
}

std::string behind(const std::string& text, const std::string& mark) {
  const std::size_t place = text.find(mark);
  return place == std::string::npos ? "" : text.substr(place + mark.size());
}

}  // namespace

std::string inWords(const CLI::ParseError& error) {
  std::string text = error.what();
  // By its code: the parser files some of them under the name of a verb.
  const auto is = [&error](CLI::ExitCodes code) { return error.get_exit_code() == static_cast<int>(code); };
  if (is(CLI::ExitCodes::ArgumentMismatch)) {
    const std::string option = before(text, ":");
    const bool isMissing = text.ends_with("missing");
    return option + (isMissing ? " needs a value" : " is given more than once");
  }
  if (is(CLI::ExitCodes::ConversionError)) {
    const std::string words = behind(text, ": ");
    return before(words, " = ") + " takes no value \"" + behind(words, " = ") + "\"";
  }
  if (is(CLI::ExitCodes::ExtrasError)) return "there is no use for " + behind(text, ": ") + " here";
  if (is(CLI::ExitCodes::RequiredError)) return before(text, " is required") + " is missing";
  return text;
}

}  // namespace phone
