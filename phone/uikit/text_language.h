// The language of a text, as far as its characters tell it and its looks depend on it.
#pragma once

#include <pango/pango.h>
#include <string>

namespace phone {

/// Japanese for a text with kana, Korean for one with hangul; nullptr for any other. Characters that
/// Chinese, Japanese and Korean share have a form for each language: without a sign of the other two they are
/// drawn as Simplified Chinese ones. The text must be well-formed. The language lives for ever.
PangoLanguage* languageOf(const std::string& utf8);

}  // namespace phone
