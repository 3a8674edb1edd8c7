#include "phone/eventkit/ics_text.h"

namespace phone {

std::string unescapedText(std::string_view value) {
  std::string text;
  text.reserve(value.size());
  for (std::size_t i = 0; i < value.size(); ++i) {
    if (value[i] != '\\' || i + 1 == value.size()) {
      text += value[i];
    } else {
      ++i;
      text += value[i] == 'n' || value[i] == 'N' ? '\n' : value[i];
    }
  }
  return text;
}

}  // namespace phone
