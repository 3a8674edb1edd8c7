// Notification records and what they do when tapped.
#pragma once

namespace phone {

/// Registers BBBulletin, BBAction and BBObserver. Call once, after startFoundation().
void registerBulletinBoard();

}  // namespace phone
