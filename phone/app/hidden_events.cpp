#include "phone/app/hidden_events.h"

#include "phone/app/phone_files.h"
#include "phone/eventkit/identifiers.h"

namespace phone {

HiddenEvents::HiddenEvents()
    : store_(objc::Owned<NSDictionary>::retain(readDictionary(kHiddenEventsFile).get())) {}

bool HiddenEvents::contains(const std::string& eventIdentifier) const {
  const auto name = parseEventIdentifier(eventIdentifier);
  if (!name) return false;
  // All occurrences of an event share what stands before the occurrence's start in its address.
  const std::string address = externalAddress(name->calendarIdentifier, name->uid, 0);
  return store_->objectForKey(textObject(address.substr(0, address.find("?o=")))) != nullptr;
}

}  // namespace phone
