// The colours that the settings application numbers.
#pragma once

#include "platform/uikit/ui_color.h"

namespace tavimo {

/// The colour of titles and subtitles with that number; white for a number without a colour (borrowed).
UIColor* namedColorOfIndex(NSInteger index);

/// The same for dates, whose black and gray are meant for the dark wallpaper behind them.
UIColor* dateColorOfIndex(NSInteger index);

}  // namespace tavimo
