// What the processes of the phone log: every NSLog line is kept, counted and, if wanted, shown.
#pragma once

#include <cstddef>
#include <cstdio>
#include <string>
#include <vector>

namespace phone {

/// The lines so far, as messages only: without date and process. A message of several lines is one entry.
const std::vector<std::string>& logLines();

/// How many messages were logged since the start or the last clearLog(), kept or not.
std::size_t logCount();

/// Forgets all lines and counts from zero.
void clearLog();

/// Whether messages are kept (the default) or only counted, for measurements.
void setLogKeeping(bool keeping);

/// Also writes every message to that stream, a line each; none: to no stream (the default). Borrowed.
void setLogEcho(std::FILE* stream);

/// Takes over NSLog's output. Done by startFoundation().
void installLogSink();

}  // namespace phone
