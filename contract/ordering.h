// The item-ordering file is a list of these names, topmost first; others only take a place.
#pragma once

namespace contract {

/// The events' group. Files of phones in use have this name in them, so it stays.
inline constexpr char kEventGroup[] = "Orvessa";
/// The phone's own notifications.
inline constexpr char kSystemGroup[] = "System Items";

}  // namespace contract
