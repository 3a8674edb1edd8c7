#include "phone/foundation/error_object.h"

#include "platform/foundation/ns_dictionary.h"

/// Foundation's own: what text stands behind a constant is Foundation's business, so none is spelled out
/// here.
extern "C" NSString* const NSLocalizedDescriptionKey;

namespace phone {

NSObject* errorObject(NSString* domain, NSInteger code, const std::string& reason) {
  NSObject* information = nullptr;
  if (NSString* const text = NSString::stringWithUTF8String(reason.c_str()); text != nullptr) {
    information = objc::sendToClass<NSDictionary, "dictionaryWithObject:forKey:", NSObject*>(
        static_cast<NSObject*>(text), static_cast<NSObject*>(NSLocalizedDescriptionKey));
  }
  return objc::sendToClass<"NSError", "errorWithDomain:code:userInfo:", NSObject*>(domain, code, information);
}

}  // namespace phone
