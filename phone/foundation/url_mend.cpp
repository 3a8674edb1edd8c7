#include "phone/foundation/url_mend.h"

#include <string>
#include <string_view>

#include "phone/objc/class_definition.h"
#include "phone/objc/hooking.h"
#include "phone/objc/unknown_selector.h"
#include "platform/foundation/ns_string.h"
#include "platform/foundation/ns_url.h"

namespace phone {

namespace {

constexpr std::string_view kBeforeHost = "://";
constexpr const char* kMendedClass = "PhoneURLWithoutPath";

objc::Displaced<NSURL*(NSURL*, SEL, NSString*, NSURL*)> originalInit;

/// Where the slash is missing that GNUstep wants between host and query or fragment, or npos.
std::size_t placeOfMissingSlash(std::string_view text) {
  const std::size_t host = text.find(kBeforeHost);
  if (host == std::string_view::npos || text.find_first_of("/?#") != host + 1) return std::string_view::npos;
  const std::size_t end = text.find_first_of("/?#", host + kBeforeHost.size());
  return end == std::string_view::npos || text[end] == '/' ? std::string_view::npos : end;
}

NSURL* initWithString(NSURL* self, SEL selector, NSString* text, NSURL* base) {
  const char* const utf8 = text->UTF8String();
  std::string mended = utf8 == nullptr ? "" : utf8;
  const std::size_t place = placeOfMissingSlash(mended);
  if (place == std::string::npos) return originalInit(self, selector, text, base);
  mended.insert(place, 1, '/');
  NSURL* const url = originalInit(self, selector, NSString::stringWithUTF8String(mended.c_str()), base);
  // The class alone marks it: the slash that was put in is the first one behind the host.
  if (url != nullptr) object_setClass(url, requiredClass(kMendedClass));
  return url;
}

NSString* withoutSlash(NSString* text) {
  const char* const utf8 = text->UTF8String();
  if (utf8 == nullptr) return text;
  std::string plain = utf8;
  plain.erase(plain.find('/', plain.find(kBeforeHost) + kBeforeHost.size()), 1);
  return NSString::stringWithUTF8String(plain.c_str());
}

template <objc::FixedString Selector>
NSString* mendedText(NSURL* self, SEL) {
  return withoutSlash(objc::sendSuper<NSString*>(requiredClass("NSURL"), self, objc::selector<Selector>()));
}

NSString* emptyPath(NSURL*, SEL) { return NSString::stringWithUTF8String(""); }

/// A URL without path whose text GNUstep holds with a slash more.
ClassDefinition urlWithoutPath() {
  return {.name = kMendedClass,
          .superclass = "NSURL",
          .methods = {method("absoluteString", mendedText<"absoluteString">),
                      method("relativeString", mendedText<"relativeString">),
                      method("description", mendedText<"description">), method("path", emptyPath)}};
}

}  // namespace

void mendUrls() {
  static const bool done = [] {
    registerClass(urlWithoutPath());
    hookMethod(requiredClass("NSURL"), "initWithString:relativeToURL:", initWithString, originalInit);
    return true;
  }();
  static_cast<void>(done);
}

}  // namespace phone
