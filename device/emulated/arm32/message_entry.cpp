// 32-bit ARM: messages, whose arguments are laid out by the type encoding of the method that answers, and
// calls with variable arguments, whose format says what they are.
#include <algorithm>
#include <unordered_map>

#include "device/emulated/arm32/crossing.h"
#include "device/emulated/crash_report.h"
#include "device/emulated/entry.h"
#include "device/emulated/formatting.h"

namespace device {

namespace {

std::uint64_t nothing() { return 0; }

template <typename Result>
void* functionAddress(Result* function) {
  return reinterpret_cast<void*>(function);
}

/// A list of variable arguments is the address of the first.
class ListOfWords {
 public:
  explicit ListOfWords([[maybe_unused]] const Word* first) {
#if defined(__arm__)
    static_assert(sizeof(list) == sizeof(first));
    std::memcpy(&list, &first, sizeof(first));
#endif
  }

  std::va_list list{};
};

void log(NSString* format, const Word* arguments) { NSLogv(format, ListOfWords(arguments).list); }

id stringWithFormat(Class, SEL, NSString* format, const Word* arguments) {
  ListOfWords words(arguments);
  return formatted(format, words.list);
}

/// A call whose last fixed argument, at `format`, says what the variable ones are. These go to where the
/// callee's stack begins, a whole multiple of eight bytes; their address takes the place of the first.
void layOutVariable(const Word* given, Word* taken, unsigned format) {
  constexpr unsigned kStack = 4;
  const auto* const text = objc::send<"UTF8String", const char*>(reinterpret_cast<id>(given[format]));
  std::copy_n(given, format + 1, taken);
  given += format + 1;
  unsigned next = kStack;
  for (const unsigned words : formatArgumentWords(text == nullptr ? "" : text)) {
    if (words == 2) next += next % 2;
    if (next + words > kMaxWords) reportAndEnd("a format asks for more arguments than any plug-in gives");
    std::copy_n(given, words, taken + next);
    given += words;
    next += words;
  }
  taken[format + 1] = reinterpret_cast<Word>(taken + kStack);
}

void* layOutLog(const Crossing&, const Word* given, Word* taken) {
  layOutVariable(given, taken, 0);
  return functionAddress(log);
}

/// The places of a method's arguments; each encoding is read once.
const ArgumentPlaces& placesOf(Method method) {
  static std::unordered_map<const char*, ArgumentPlaces> known;
  const char* const encoding = method_getTypeEncoding(method);
  const auto found = known.find(encoding);
  return found != known.end() ? found->second : known.emplace(encoding, callPlaces(encoding)).first->second;
}

/// A message to an object: its arguments begin at `given`, the result's place in memory not counted.
void* layOutMessage(Class answering, bool isResultInMemory, IMP answer, const Word* given, Word* taken) {
  const unsigned first = isResultInMemory ? 1 : 0;
  const auto selector = reinterpret_cast<SEL>(given[first + 1]);
  if (isStringWithFormat(selector)) {
    layOutVariable(given, taken, 2);
    return functionAddress(stringWithFormat);
  }
  Method const method = class_getInstanceMethod(answering, selector);
  if (method == nullptr) {
    // Whoever forwards it finds the arguments where Linux has them unless one is a 64-bit number.
    constexpr unsigned kWords = 8;
    std::copy_n(given, kWords, taken);
    return reinterpret_cast<void*>(answer);
  }
  const ArgumentPlaces& places = placesOf(method);
  if (places.isResultInMemory != isResultInMemory)
    reportAndEnd("a message was sent by the entry for other results");
  for (const unsigned here : places.here) taken[here] = *given++;
  return reinterpret_cast<void*>(answer);
}

template <bool isResultInMemory>
void* layOutSend(const Crossing&, const Word* given, Word* taken) {
  constexpr unsigned kFirst = isResultInMemory ? 1 : 0;
  const auto receiver = reinterpret_cast<id>(given[kFirst]);
  if (receiver == nullptr) return functionAddress(nothing);
  const auto selector = reinterpret_cast<SEL>(given[kFirst + 1]);
  return layOutMessage(receiver->class_pointer, isResultInMemory, objc_msg_lookup(receiver, selector), given,
                       taken);
}

template <bool isResultInMemory>
void* layOutSendSuper(const Crossing&, const Word* given, Word* taken) {
  constexpr unsigned kFirst = isResultInMemory ? 1 : 0;
  auto* const target = reinterpret_cast<objc_super*>(given[kFirst]);
  const auto selector = reinterpret_cast<SEL>(given[kFirst + 1]);
  void* const answer = layOutMessage(target->super_class, isResultInMemory,
                                     objc_msg_lookup_super(target, selector), given, taken);
  taken[kFirst] = reinterpret_cast<Word>(target->self);
  return answer;
}

}  // namespace

void* messageEntry(const std::string& name) {
  static const std::unordered_map<std::string, Crossing> entries{
      {"objc_msgSend", {layOutSend<false>}},
      {"objc_msgSend_stret", {layOutSend<true>}},
      {"objc_msgSendSuper", {layOutSendSuper<false>}},
      {"objc_msgSendSuper_stret", {layOutSendSuper<true>}},
      {"NSLog", {layOutLog}},
  };
  const auto entry = entries.find(name);
  return entry == entries.end() ? nullptr : functionFor(entry->second);
}

}  // namespace device
