// The home-screen process: its lock screen classes and the state that they share.
#pragma once

namespace phone {

/// What the lock screen has done to the phone so far.
struct SpringBoardState {
  bool screenIsOn = false;
};

/// The state of the one home screen in this process.
SpringBoardState& springBoardState();

/// Registers SpringBoard and the lock screen classes, and starts from a fresh state. Call once, after
/// registerBulletinBoard().
void registerSpringBoard();

}  // namespace phone
