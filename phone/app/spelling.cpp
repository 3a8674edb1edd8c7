#include "phone/app/spelling.h"

#include <algorithm>
#include <cctype>

namespace phone {

namespace {

/// Longer words are nobody's slip of the finger, and comparing them costs the product of their lengths.
constexpr std::size_t kLongestWord = 64;

std::string lowerCase(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), [](unsigned char c) { return std::tolower(c); });
  return lower;
}

/// How many letters have to be added, left out, changed or swapped with their neighbour.
std::size_t editDistance(const std::string& from, const std::string& to) {
  std::vector<std::vector<std::size_t>> cost(from.size() + 1, std::vector<std::size_t>(to.size() + 1));
  for (std::size_t i = 0; i <= from.size(); ++i) cost[i][0] = i;
  for (std::size_t j = 0; j <= to.size(); ++j) cost[0][j] = j;
  for (std::size_t i = 1; i <= from.size(); ++i) {
    for (std::size_t j = 1; j <= to.size(); ++j) {
      const std::size_t change = from[i - 1] == to[j - 1] ? 0 : 1;
      cost[i][j] = std::min({cost[i - 1][j] + 1, cost[i][j - 1] + 1, cost[i - 1][j - 1] + change});
      const bool areSwapped = i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1];
      if (areSwapped) cost[i][j] = std::min(cost[i][j], cost[i - 2][j - 2] + 1);
    }
  }
  return cost[from.size()][to.size()];
}

}  // namespace

std::string nearestWord(std::string_view typed, const std::vector<std::string>& words) {
  if (typed.size() > kLongestWord) return "";
  const std::string wanted = lowerCase(typed);
  std::string nearest;
  // A third of the letters may be wrong; of a short word, one.
  std::size_t least = std::max<std::size_t>(wanted.size() / 3, 1) + 1;
  for (const std::string& word : words) {
    if (word.size() > kLongestWord) continue;
    const std::size_t distance = editDistance(wanted, lowerCase(word));
    // Not so far that nothing of the word is left.
    if (distance >= least || distance >= word.size()) continue;
    least = distance;
    nearest = word;
  }
  return nearest;
}

std::string didYouMean(std::string_view typed, const std::vector<std::string>& words) {
  const std::string nearest = nearestWord(typed, words);
  return nearest.empty() ? "" : "; did you mean " + nearest + "?";
}

}  // namespace phone
