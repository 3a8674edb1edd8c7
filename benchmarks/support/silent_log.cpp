// A log call that does nothing. The plug-in takes NSLog from the host program first, so linking this file
// takes the platform's logging out of a measurement.
#include "platform/foundation/ns_log.h"

void NSLog(NSString* /*format*/, ...) {}
