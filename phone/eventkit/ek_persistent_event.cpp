#include "phone/eventkit/ek_objects.h"

namespace phone {

ClassDefinition ekPersistentEvent() {
  using State = PersistentEventState;
  return {.name = "EKPersistentEvent",
          .superclass = "NSObject",
          .state = state<State>(),
          .methods = {getter<&State::identifier>("eventIdentifier")}};
}

}  // namespace phone
