// Times and dates as the lock screen writes them, in English and on a 24-hour clock.
#pragma once

class BBBulletin;
class NSDate;
class NSString;

namespace phone {

/// "9:41" (borrowed).
NSString* clockText(NSDate* date);

/// "Friday, March 7" (borrowed).
NSString* todayText(NSDate* date);

/// What stands beside a record's title (borrowed; nil for a record without a date). A record with an end
/// tells about a time: "14:30", "Tomorrow 14:30", "All day", "Now". Any other tells how long ago it came:
/// "now", "5m ago".
NSString* relevanceText(BBBulletin* bulletin);

}  // namespace phone
