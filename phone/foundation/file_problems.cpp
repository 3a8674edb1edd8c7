#include "phone/foundation/file_problems.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <stdexcept>

namespace phone {

namespace {

std::vector<std::string>& problems() {
  static std::vector<std::string> all;
  return all;
}

}  // namespace

bool isSystemFailure(int reason) {
  constexpr std::array kNothingOfThatKindThere{ENOENT, ENOTDIR, EISDIR, ELOOP, ENAMETOOLONG, EINVAL, EFBIG};
  return std::ranges::find(kNothingOfThatKindThere, reason) == kNothingOfThatKindThere.end();
}

void reportFileProblem(const std::string& problem) {
  if (std::ranges::find(problems(), problem) == problems().end()) problems().push_back(problem);
}

const std::vector<std::string>& fileProblems() { return problems(); }

void requireNoFileProblem() {
  if (!problems().empty()) throw std::runtime_error(problems().front());
}

void clearFileProblems() { problems().clear(); }

}  // namespace phone
