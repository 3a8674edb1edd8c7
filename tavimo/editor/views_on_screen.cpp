#include "tavimo/editor/views_on_screen.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "platform/foundation/ns_number.h"
#include "platform/objc/associated_object.h"
#include "platform/objc/owned.h"

namespace tavimo {

namespace {

/// A view on screen. The token is held here and by the view, and known to nobody else: once only this
/// reference to it is left, the view is gone. The phone's own weak references are not on every host.
struct Appearance {
  EKEventViewController* view;
  NSObject* token;

  bool isOver() const {
    constexpr NSUInteger kOwnReference = 1;
    return objc::send<"retainCount", NSUInteger>(token) <= kOwnReference;
  }
};

/// More event views than a host shows at once; beyond them the one that appeared first is forgotten.
constexpr std::size_t kMaxAppearances = 16;

/// In the order in which the views appeared.
constinit Appearance appearances[kMaxAppearances] = {};
constinit std::size_t appearanceCount = 0;

constexpr char kTokenKey = 0;
constexpr char kListsItemKey = 0;

void forget(std::size_t index) {
  objc::assignStrong<NSObject>(appearances[index].token, nullptr);
  std::copy(appearances + index + 1, appearances + appearanceCount, appearances + index);
  appearances[--appearanceCount] = {};
}

/// Forgets the view, or what was at its address before it, and views that are gone.
void forgetView(const EKEventViewController* view) {
  for (std::size_t i = appearanceCount; i-- > 0;) {
    if (appearances[i].view == view || appearances[i].isOver()) forget(i);
  }
}

}  // namespace

void noteAppeared(EKEventViewController* view) {
  forgetView(view);
  if (appearanceCount == std::size(appearances)) forget(0);
  auto token = objc::make<NSObject>();
  objc::associate(view, &kTokenKey, token.get());
  appearances[appearanceCount++] = {view, token.relinquish()};
}

void noteDisappeared(EKEventViewController* view) {
  objc::associate(view, &kTokenKey, nullptr);
  forgetView(view);
}

void noteListsItem(EKEventViewController* view, bool listsItem) {
  objc::associate(view, &kListsItemKey, listsItem ? NSNumber::numberWithBool(true) : nullptr);
}

EKEventViewController* viewInUse() {
  for (std::size_t i = appearanceCount; i-- > 0;) {
    const Appearance& appearance = appearances[i];
    if (!appearance.isOver() && objc::associated<NSNumber>(appearance.view, &kListsItemKey) != nullptr) {
      return appearance.view;
    }
  }
  return nullptr;
}

}  // namespace tavimo
