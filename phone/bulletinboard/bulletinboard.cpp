#include "phone/bulletinboard/bulletinboard.h"

#include "phone/bulletinboard/bb_action.h"
#include "phone/bulletinboard/bb_bulletin.h"
#include "phone/bulletinboard/bb_observer.h"

namespace phone {

void registerBulletinBoard() {
  registerClass(bbAction());
  registerClass(bbBulletin());
  registerClass(bbObserver());
}

}  // namespace phone
