// In checked builds, compares the signature of every message with the type encoding of the method that
// answers it, and ends the process naming both when they differ. Compiles to nothing otherwise.
#pragma once

#include "platform/objc/encoding.h"

#if defined(TAVIMO_CHECKED_SENDS)
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#endif

namespace objc {

#if defined(TAVIMO_CHECKED_SENDS)

namespace detail {

/// const, in, inout, out, bycopy, byref, oneway: none of them changes how a value is passed.
inline bool isQualifier(char code) {
  return code == 'r' || code == 'n' || code == 'N' || code == 'o' || code == 'O' || code == 'R' ||
         code == 'V';
}

/// The encoding without frame offsets, qualifiers, struct names and the spellings that pass the same way.
inline std::string normalizedEncoding(std::string_view encoding) {
  std::string normal;
  for (std::size_t i = 0; i < encoding.size(); ++i) {
    const char code = encoding[i];
    if ((code >= '0' && code <= '9') || code == '+' || code == '-' || isQualifier(code)) continue;
    if (code == '{') {
      // A struct's name is its maker's business; only its members decide how it is passed.
      normal += '{';
      while (i + 1 < encoding.size() && encoding[i + 1] != '=' && encoding[i + 1] != '}') ++i;
      continue;
    }
    if (code == '"') {
      while (i + 1 < encoding.size() && encoding[i + 1] != '"') ++i;
      ++i;
      continue;
    }
    if (code == '@' && i + 1 < encoding.size() && encoding[i + 1] == '?') {
      normal += '@';
      ++i;
      continue;
    }
    if (code == '^') {
      // All pointers pass alike; what they point to is skipped, one type long.
      normal += '^';
      while (i + 1 < encoding.size() && (encoding[i + 1] == '^' || isQualifier(encoding[i + 1]))) ++i;
      int depth = 0;
      do {
        ++i;
        if (i < encoding.size()) depth += encoding[i] == '{' ? 1 : encoding[i] == '}' ? -1 : 0;
      } while (depth > 0 && i + 1 < encoding.size());
      continue;
    }
    // The platforms' boolean types differ in name only.
    normal += (code == 'C' || code == 'c') ? 'B' : code == '#' ? '@' : code;
  }
  return normal;
}

[[noreturn]] inline void failSend(id receiver, SEL selector, const char* sent, const char* answered) {
  std::fprintf(stderr, "message %c[%s %s]: sent as \"%s\", but %s%s\n",
               class_isMetaClass(object_getClass(receiver)) ? '+' : '-', object_getClassName(receiver),
               sel_getName(selector), sent, answered == nullptr ? "no method answers" : "the method is ",
               answered == nullptr ? "" : answered);
  std::abort();
}

}  // namespace detail

/// True when a message of one encoding may be answered by a method of the other.
inline bool encodingsAgree(std::string_view sent, std::string_view answered) {
  return detail::normalizedEncoding(sent) == detail::normalizedEncoding(answered);
}

template <typename Result, typename... Arguments>
inline void checkSend(id receiver, SEL selector) {
  constexpr auto& sent = MethodEncoding<Result, Arguments...>::value;
  // GCC's runtime keeps a class's own methods in its metaclass, so one lookup serves both kinds.
  Method const method = class_getInstanceMethod(object_getClass(receiver), selector);
  if (method == nullptr) detail::failSend(receiver, selector, sent.c_str(), nullptr);
  const char* const answered = method_getTypeEncoding(method);
  if (answered != nullptr && !encodingsAgree(sent.c_str(), answered)) {
    detail::failSend(receiver, selector, sent.c_str(), answered);
  }
}

#else

template <typename Result, typename... Arguments>
inline void checkSend(id /*receiver*/, SEL /*selector*/) {}

#endif

}  // namespace objc
