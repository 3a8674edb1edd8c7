// How records on the lock screen are told apart, and what they carry from publishing to presentation.
#pragma once

namespace contract {

/// Identifiers of the plug-in's own records begin with this; a number follows.
inline constexpr char kOwnRecordPrefix[] = "Tavimo";
/// The sibling product's reminders, which share the lock screen with the plug-in's items.
inline constexpr char kSiblingRecordPrefix[] = "Pellanor";
/// The colour tag, a record's message: this, then the colour text of the event's calendar.
inline constexpr char kColorTagPrefix[] = "TVM|";
/// The length of a colour text, "#rrggbb".
inline constexpr int kColorTextLength = 7;

}  // namespace contract
