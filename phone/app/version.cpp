#include "phone/app/version.h"

namespace phone {

const char* const kVersion = TAVIMO_VERSION;

}  // namespace phone
