#include "phone/app/picture_option.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <sys/stat.h>
#include <unistd.h>

#include "phone/foundation/output_file.h"

namespace phone {

namespace {

/// True for "-", and for a name of the file or pipe that the standard output is, such as /dev/stdout:
/// replaced or written to a second time, it would lose the text or the picture.
bool isStandardOutput(const std::string& name) {
  if (name == "-") return true;
  struct stat named {};
  struct stat output {};
  return stat(name.c_str(), &named) == 0 && fstat(STDOUT_FILENO, &output) == 0 &&
         named.st_dev == output.st_dev && named.st_ino == output.st_ino && !S_ISCHR(named.st_mode);
}

}  // namespace

void PictureOption::addTo(CLI::App& verb, const std::string& what) {
  verb.add_option("--png", name_,
                  what + "; - is the standard output, and the text then goes to the standard error")
      ->type_name("FILE")
      ->check([](const std::string& name) -> std::string {
        if (name.empty()) return "the file has no name";
        return name == "-" && isatty(STDOUT_FILENO) != 0
                   ? "the standard output is a terminal; send it to a file or another program"
                   : "";
      });
}

void PictureOption::write(const Surface& picture) const {
  if (!isStandardOutput(name_)) return writePng(picture, name_);
  std::cout.flush();
  const FileDescriptor output(dup(STDOUT_FILENO));
  writeOpenFile(output, "the standard output", pngOf(picture));
}

std::ostream& PictureOption::text() const { return isStandardOutput(name_) ? std::cerr : std::cout; }

}  // namespace phone
