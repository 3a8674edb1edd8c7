#include "tests/support/built.h"

namespace phone {

std::filesystem::path pluginLibrary() { return TAVIMO_LIBRARY; }

std::filesystem::path phoneCommand() { return TAVIMO_PHONE_COMMAND; }

std::filesystem::path sourceFolder() { return TAVIMO_SOURCE_DIR; }

}  // namespace phone
