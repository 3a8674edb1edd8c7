// Looks of texts on a terminal: titles stand out, details stand back, calendars show their colours. Anywhere
// else texts are plain.
#pragma once

#include <string>

namespace phone {

class TerminalStyle {
 public:
  /// For the standard output. "always" and "never" are the user's word; for "auto" texts have looks on a
  /// terminal that knows any, unless $NO_COLOR asks for none.
  explicit TerminalStyle(const std::string& when);

  std::string bold(const std::string& text) const { return with("1", text); }
  std::string dim(const std::string& text) const { return with("2", text); }
  /// A dot of that colour ("#RRGGBB") and a space; empty where texts are plain.
  std::string dot(const std::string& color) const;

 private:
  enum class Colors { kNone, k256, kAll };

  std::string with(const char* look, const std::string& text) const;

  Colors colors_ = Colors::kNone;
};

}  // namespace phone
