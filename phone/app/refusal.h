// What the command says of a use that the parser refuses.
#pragma once

#include <string>

namespace CLI {
class App;
class ParseError;
}  // namespace CLI

namespace phone {

/// "phone settings set", as far as the verbs were understood.
std::string spokenSoFar(const CLI::App& command);

/// Why the parser refused what was typed, in words for people, with the word that was probably meant.
std::string reasonOf(const CLI::App& command, const CLI::ParseError& error);

}  // namespace phone
