// Where a verb draws its picture, and where its text goes then.
#pragma once

#include <iosfwd>
#include <string>

#include "phone/uikit/surface.h"

namespace CLI {
class App;
}

namespace phone {

class PictureOption {
 public:
  /// Adds --png to the verb. The option must outlive it.
  void addTo(CLI::App& verb, const std::string& what);

  bool isWanted() const { return !name_.empty(); }
  /// Writes the picture to where the user wants it. Throws std::runtime_error with the reason.
  void write(const Surface& picture) const;
  /// Where the verb's text goes: the standard output, or the standard error when the picture takes the
  /// former.
  std::ostream& text() const;

 private:
  std::string name_;
};

}  // namespace phone
