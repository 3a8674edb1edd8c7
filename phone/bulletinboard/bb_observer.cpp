#include "phone/bulletinboard/bb_observer.h"

namespace phone {

ClassDefinition bbObserver() { return {.name = "BBObserver", .superclass = "NSObject"}; }

}  // namespace phone
