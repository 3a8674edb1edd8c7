// Custom items: the plug-in's own and the sibling product's reminders. Whether a list shows nothing else
// decides about the wallpaper underlay.
#pragma once

#include "platform/foundation/ns_mutable_array.h"
#include "tavimo/export.h"

/// True when the list has items and all of them are custom items.
TAVIMO_EXPORT bool onlyCustomItemsAreDisplayed(NSMutableArray* listItems);

/// True when the list has a custom item.
TAVIMO_EXPORT bool customItemsAreDisplayed(NSMutableArray* listItems);
