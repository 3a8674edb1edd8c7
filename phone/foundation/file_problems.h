// What went wrong with files where the platform's own answer says nothing: to a host, a file that cannot be
// read is as good as none, and a failed write is a "no". The `phone` command tells its user.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace phone {

/// Whether the reason (an error number) says that a file is there, or may be, but the system could not do
/// what was asked: a broken disk, a missing permission, no memory. A name that leads nowhere is none of
/// these.
bool isSystemFailure(int reason);

/// Remembers the problem, a sentence that names the file. Each is remembered once.
void reportFileProblem(const std::string& problem);

/// All problems of this process since Foundation was started, in the order in which they came.
const std::vector<std::string>& fileProblems();

/// Throws std::runtime_error with the first problem, if there is one: what is shown or saved next would be
/// wrong.
void requireNoFileProblem();

/// Forgets them.
void clearFileProblems();

}  // namespace phone
