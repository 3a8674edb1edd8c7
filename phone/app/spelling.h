// "Did you mean": the word that a misspelled one was probably meant to be.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace phone {

/// The word that is spelled most like the typed one, capital letters aside; the first of several. Empty when
/// none is near enough to be meant.
std::string nearestWord(std::string_view typed, const std::vector<std::string>& words);

/// "; did you mean WORD?" for that word; empty when there is none.
std::string didYouMean(std::string_view typed, const std::vector<std::string>& words);

}  // namespace phone
