// Ready-made events, and the messages that the tests watch.
#pragma once

#include <string>

#include "platform/bulletinboard/bb_action.h"
#include "platform/bulletinboard/bb_bulletin.h"
#include "tests/tavimo/support/lock_screen.h"
#include "tests/tavimo/support/message_recorder.h"
#include "tests/tavimo/support/scripted_event_store.h"

namespace phone {

using Lines = std::vector<std::string>;

/// An event of the first calendar at the morning's hour. Its key in the hidden-event store is
/// "x-apple-calevent://RED/" and the title.
inline ScriptedEvent titled(const std::string& title) {
  return {.title = title, .start = kMorning, .url = "x-apple-calevent://RED/" + title + "?o=416000000"};
}

/// One load of the list, and what was recorded meanwhile.
inline Lines messagesOfLoad(LockScreen& phone) {
  sentMessages().clear();
  phone.load();
  return sentMessages();
}

}  // namespace phone
