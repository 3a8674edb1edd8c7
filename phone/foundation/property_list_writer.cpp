// Foundation's objects as libplist's tree.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "phone/foundation/property_list_guard.h"
#include "phone/foundation/property_list_tree.h"
#include "platform/foundation/ns_array.h"
#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_dictionary.h"
#include "platform/foundation/ns_number.h"
#include "platform/foundation/ns_string.h"

namespace phone {

namespace {

plist_t build(NSObject* object, int depth);

template <objc::FixedString ClassName>
bool is(NSObject* object) {
  return object->isKindOfClass(objc::classNamed<ClassName>());
}

/// The text's bytes (borrowed), without the zero bytes and unpaired surrogates that a file cannot carry.
const char* bytesOf(NSString* text) {
  constexpr unsigned int kUtf8 = 4;
  const char* const utf8 = text->UTF8String();
  if (utf8 == nullptr) throw std::runtime_error("a text is not valid Unicode");
  if (std::strlen(utf8) != objc::send<"lengthOfBytesUsingEncoding:", NSUInteger>(text, kUtf8)) {
    throw std::runtime_error("a text has a zero character in it");
  }
  return utf8;
}

plist_t number(NSNumber* value) {
  // Foundation has one object for each truth value, and gives them the type of a character.
  if (value == NSNumber::numberWithBool(true)) return plist_new_bool(1);
  if (value == NSNumber::numberWithBool(false)) return plist_new_bool(0);
  switch (*objc::send<"objCType", const char*>(value)) {
    case 'f':
    case 'd':
      return plist_new_real(value->doubleValue());
    case 'Q':
    case 'L':
      if (value->integerValue() < 0) throw std::runtime_error("a number is too large");
      [[fallthrough]];
    default:
      return plist_new_uint(static_cast<std::uint64_t>(value->integerValue()));
  }
}

plist_t date(NSDate* value) {
  const double seconds = std::floor(value->timeIntervalSinceReferenceDate());
  using Seconds = std::numeric_limits<std::int32_t>;
  if (!(seconds >= Seconds::min() && seconds <= Seconds::max())) {
    throw std::runtime_error("a date lies before 1932 or after 2069");
  }
  // XML property lists have whole seconds.
  return plist_new_date(static_cast<std::int32_t>(seconds), 0);
}

plist_t data(NSObject* value) {
  const auto* const bytes = static_cast<const char*>(objc::send<"bytes", const void*>(value));
  return plist_new_data(bytes == nullptr ? "" : bytes, objc::send<"length", NSUInteger>(value));
}

plist_t array(NSArray* value, int depth) {
  PropertyListTree made(plist_new_array());
  const NSUInteger count = value->count();
  for (NSUInteger i = 0; i < count; ++i) {
    plist_array_append_item(made.get(), build(value->objectAtIndex(i), depth + 1));
  }
  return made.release();
}

plist_t dictionary(NSDictionary* value, int depth) {
  NSArray* const keys = value->allKeys();
  const NSUInteger count = keys->count();
  // Sorted, so that a dictionary always makes the same file.
  std::vector<std::pair<std::string_view, NSObject*>> sorted;
  sorted.reserve(count);
  for (NSUInteger i = 0; i < count; ++i) {
    NSObject* const key = keys->objectAtIndex(i);
    if (!is<"NSString">(key)) throw std::runtime_error("a dictionary has a key that is no text");
    sorted.emplace_back(bytesOf(static_cast<NSString*>(key)), key);
  }
  std::sort(sorted.begin(), sorted.end());
  PropertyListTree made(plist_new_dict());
  for (const auto& [utf8, key] : sorted) {
    plist_dict_set_item(made.get(), utf8.data(), build(value->objectForKey(key), depth + 1));
  }
  return made.release();
}

plist_t build(NSObject* object, int depth) {
  if (depth > kMaximumDepth) throw std::runtime_error("it is nested too deeply, or holds itself");
  if (is<"NSString">(object)) return plist_new_string(bytesOf(static_cast<NSString*>(object)));
  if (is<"NSNumber">(object)) return number(static_cast<NSNumber*>(object));
  if (is<"NSDictionary">(object)) return dictionary(static_cast<NSDictionary*>(object), depth);
  if (is<"NSArray">(object)) return array(static_cast<NSArray*>(object), depth);
  if (is<"NSDate">(object)) return date(static_cast<NSDate*>(object));
  if (is<"NSData">(object)) return data(object);
  throw std::runtime_error(std::string("an object of class ") + object_getClassName(object) +
                           " cannot stand in a property list");
}

}  // namespace

PropertyListTree treeOf(NSObject* object) { return PropertyListTree(build(object, 1)); }

}  // namespace phone
