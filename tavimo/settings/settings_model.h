// The settings model: the process-wide values that every lock screen replacement consults. Other programs
// read them by these names. Objects are strong references; all is zero until the first read.
#pragma once

#include "platform/uikit/ui_color.h"
#include "platform/uikit/ui_image.h"
#include "tavimo/export.h"

/// Master switch; off, every replacement passes its call to the host unchanged.
TAVIMO_EXPORT bool isEnabled;
/// Diagnostic messages are logged.
TAVIMO_EXPORT bool debugMode;
/// Items are filed under the calendar app's section.
TAVIMO_EXPORT bool compatibilityMode;
/// The items leave the list when the Now Playing screen comes up.
TAVIMO_EXPORT bool hideOnNowPlayingScreen;
/// The application that swipe action 3 opens.
TAVIMO_EXPORT NSString* customLaunchAppBundleID;
/// Own cells draw separator lines.
TAVIMO_EXPORT bool showSeparatorLines;
/// The date stands at the cell's right edge instead of behind the title.
TAVIMO_EXPORT bool rightAlignedDate;
/// Search what the Calendar app shows; off, search the calendars of the selection file.
TAVIMO_EXPORT bool onlySelectedCalendars;
/// The event's location is shown under its title.
TAVIMO_EXPORT bool displayLocation;
/// Rows without a location are as high as rows with one.
TAVIMO_EXPORT bool sameHeightRows;
/// When the wallpaper is blurred behind the list; one of contract::BlurMode.
TAVIMO_EXPORT NSInteger wallpaperBlurMode;
/// What a tap opens; one of contract::SwipeAction.
TAVIMO_EXPORT NSInteger swipeAction;
TAVIMO_EXPORT UIColor* textColor;
/// The title is drawn in the colour of the event's calendar instead of `textColor`.
TAVIMO_EXPORT bool titleColorSameAsCalendarColor;
/// Font sizes, in points.
TAVIMO_EXPORT NSInteger textSize;
TAVIMO_EXPORT UIColor* subtitleTextColor;
TAVIMO_EXPORT NSInteger subtitleTextSize;
TAVIMO_EXPORT UIColor* dateTextColor;
TAVIMO_EXPORT NSInteger dateTextSize;
/// How many days beyond today are searched.
TAVIMO_EXPORT NSInteger daysToDisplay;
/// The largest number of events; 0 or less means no limit.
TAVIMO_EXPORT NSInteger maxEventsToDisplay;
/// "NONE", "DOT", "DOT_LARGE" or the path of an image file.
TAVIMO_EXPORT NSString* iconFile;
/// The image that `iconFile` names, or nil.
TAVIMO_EXPORT UIImage* icon;
/// Years between the items' ordering dates and now, see item_ordering.h; -100 for no ordering.
TAVIMO_EXPORT NSInteger sortPriority;
