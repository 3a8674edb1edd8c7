// Which events the user has chosen not to show: one small file that the calendar process writes and the home
// screen reads. It is read afresh at every use, and every write replaces it whole.
#pragma once

#include "platform/foundation/ns_dictionary.h"

namespace tavimo {

/// The key of the event with that URL text: what stands before the first "?o=", which all occurrences of an
/// event share. A text without it is its own key; nil gives nil (borrowed).
NSString* hiddenEventKey(NSString* urlText);

/// The store's entries (borrowed); empty, never nil, when the file is missing or no dictionary.
NSDictionary* loadHiddenEvents();

/// Whether the store has an entry, of any value, under the key. No key is never hidden.
bool isHiddenEvent(NSDictionary* store, NSString* key);

/// Adds or removes the entry and writes the file, even when nothing changed. The key must not be nil. A
/// write that fails leaves the old file.
void setEventHidden(NSString* key, bool hidden);

}  // namespace tavimo
