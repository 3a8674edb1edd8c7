// The parser's complaints in words for people.
#pragma once

#include <string>

namespace CLI {
class ParseError;
}

namespace phone {

std::string inWords(const CLI::ParseError& error);

}  // namespace phone
