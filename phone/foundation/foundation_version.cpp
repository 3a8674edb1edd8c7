#include "platform/foundation/foundation_version.h"

// Set when a host starts, before any class is registered.
double NSFoundationVersionNumber = 1144.17;
