#include "phone/calendarui/item_group.h"

#include <algorithm>
#include <string_view>

namespace phone {

std::vector<std::vector<NSObject*>> groupItems(NSArray* items, std::span<const ItemPlace> places) {
  std::vector<std::vector<NSObject*>> groups;
  int current = -1;
  for (NSUInteger i = 0; i < items->count(); ++i) {
    NSObject* const item = items->objectAtIndex(i);
    const std::string_view className = object_getClassName(item);
    const auto place = std::ranges::find(places, className, &ItemPlace::className);
    const bool begins = place != places.end() && place->group != current;
    if (begins) current = place->group;
    if (begins || groups.empty()) groups.emplace_back();
    groups.back().push_back(item);
  }
  return groups;
}

}  // namespace phone
