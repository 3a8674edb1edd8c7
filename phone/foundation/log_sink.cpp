#include "phone/foundation/log_sink.h"

#include <string_view>

#include "platform/foundation/ns_string.h"

/// Foundation hands every NSLog line to this function when it is set.
extern "C" void (*_NSLog_printf_handler)(NSString* line);

namespace phone {

namespace {

struct LogSink {
  std::vector<std::string> lines;
  std::size_t count = 0;
  bool keeping = true;
  std::FILE* echo = nullptr;
};

LogSink& sink() {
  static LogSink one;
  return one;
}

/// Cuts "2014-03-07 10:00:00.000 process[12:34] " off the front and the line feed off the end. The process's
/// name may hold brackets of its own, so what is looked for is "[", digits and colons, "] ".
std::string_view messageOf(std::string_view line) {
  if (line.ends_with('\n')) line.remove_suffix(1);
  for (std::size_t open = line.find('['); open != std::string_view::npos; open = line.find('[', open + 1)) {
    const std::size_t close = line.find_first_not_of("0123456789:", open + 1);
    if (close == std::string_view::npos) break;
    if (close > open + 1 && line.substr(close, 2) == "] ") return line.substr(close + 2);
  }
  return line;
}

void receive(NSString* line) {
  LogSink& log = sink();
  ++log.count;
  if (!log.keeping && log.echo == nullptr) return;
  const char* const text = line->UTF8String();
  const std::string_view message = messageOf(text == nullptr ? "" : text);
  if (log.keeping) log.lines.emplace_back(message);
  if (log.echo != nullptr) std::fprintf(log.echo, "%.*s\n", static_cast<int>(message.size()), message.data());
}

}  // namespace

const std::vector<std::string>& logLines() { return sink().lines; }
std::size_t logCount() { return sink().count; }

void clearLog() {
  sink().lines.clear();
  sink().count = 0;
}

void setLogKeeping(bool keeping) { sink().keeping = keeping; }
void setLogEcho(std::FILE* stream) { sink().echo = stream; }
void installLogSink() { _NSLog_printf_handler = receive; }

}  // namespace phone
