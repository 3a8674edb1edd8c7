#include "phone/bulletinboard/bulletinboard.h"

#include "phone/bulletinboard/definitions.h"

namespace phone {

namespace {

// The party in whose name records are added to a list and taken out again; all that matters is who it is.
ClassDefinition bbObserver() { return {.name = "BBObserver", .superclass = "NSObject"}; }

}  // namespace

void registerBulletinBoard() { registerClasses({bbAction, bbBulletin, bbObserver}); }

}  // namespace phone
