// How the process of the command begins and ends: what has to be in order before the first object of
// Foundation is made, errors in words, and the last line of output.
#pragma once

#include <exception>
#include <string>

namespace phone {

/// Gives every closed standard stream a place of its own, so that no file of the phone gets its number, and
/// lets a reader that goes away and a file that grows too large be errors of a write instead of the process's
/// end.
void prepareStreams();

/// Foundation ends the process, with a page of its own words, when an argument, the home folder or the
/// current one is no UTF-8 text. Says so in one line instead; gives the exit code, 0 when all is well.
int refuseBrokenTexts(int argc, char** argv);

/// The error in words for people: the libraries' own where they are none.
std::string describeError(const std::exception& error);

/// Writes out what is left of the standard output. Gives the exit code: `code`, or another one when the
/// output could not be written, which is then said. A reader that has gone away had enough: that is no error.
int finishOutput(int code);

}  // namespace phone
