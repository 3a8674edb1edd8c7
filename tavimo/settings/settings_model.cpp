#include "tavimo/settings/settings_model.h"

constinit bool isEnabled = false;
constinit bool debugMode = false;
constinit bool compatibilityMode = false;
constinit bool hideOnNowPlayingScreen = false;
constinit NSString* customLaunchAppBundleID = nullptr;
constinit bool showSeparatorLines = false;
constinit bool rightAlignedDate = false;
constinit bool onlySelectedCalendars = false;
constinit bool displayLocation = false;
constinit bool sameHeightRows = false;
constinit NSInteger wallpaperBlurMode = 0;
constinit NSInteger swipeAction = 0;
constinit UIColor* textColor = nullptr;
constinit bool titleColorSameAsCalendarColor = false;
constinit NSInteger textSize = 0;
constinit UIColor* subtitleTextColor = nullptr;
constinit NSInteger subtitleTextSize = 0;
constinit UIColor* dateTextColor = nullptr;
constinit NSInteger dateTextSize = 0;
constinit NSInteger daysToDisplay = 0;
constinit NSInteger maxEventsToDisplay = 0;
constinit NSString* iconFile = nullptr;
constinit UIImage* icon = nullptr;
constinit NSInteger sortPriority = 0;
