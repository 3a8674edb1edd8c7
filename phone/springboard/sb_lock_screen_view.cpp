#include "phone/springboard/sb_lock_screen_view.h"

#include <algorithm>
#include <cmath>

#include "phone/springboard/date_texts.h"
#include "phone/springboard/definitions.h"
#include "phone/springboard/lock_screen_furniture.h"
#include "phone/springboard/now_playing_screen.h"
#include "phone/springboard/sb_lock_screen_notification_list_view.h"
#include "phone/springboard/wallpaper.h"
#include "phone/uikit/blur.h"
#include "phone/uikit/ui_color.h"
#include "phone/uikit/ui_font.h"
#include "phone/uikit/ui_graphics.h"
#include "phone/uikit/ui_image.h"
#include "phone/uikit/ui_view.h"
#include "platform/foundation/literal.h"
#include "platform/uikit/ui_label.h"
#include "platform/uikit/ui_screen.h"

namespace phone {

namespace {

using LockView = SBLockScreenView;

struct LockScreenState {
  std::vector<std::string> requesters;
  /// None: the phone's own.
  Surface chosenWallpaper;
  /// As the screen shows them, in its pixels; made when they are first drawn.
  Surface wallpaper;
  Surface underlay;
  objc::Owned<UILabel> clock;
  objc::Owned<UILabel> day;
  objc::Owned<UILabel> hint;
  objc::Owned<SBLockScreenNotificationListView> listView;
  bool isPlaying = false;
};

LockScreenState& stateOfView(LockView* view) { return stateOf<LockScreenState>(view); }

struct LabelStyle {
  FontWeight weight;
  double points;
  double opacity;
};

objc::Owned<UILabel> makeLabel(LockView* self, CGRect frame, const LabelStyle& style) {
  auto label = makeView<UILabel>(frame);
  label->setFont(makeFont(style.weight, style.points).get());
  label->setTextColor(makeColor(greyColor(1, style.opacity)).get());
  label->setTextAlignment(static_cast<NSInteger>(TextAlignment::kCenter));
  self->addSubview(label.get());
  return label;
}

LockView* initWithFrame(LockView* self, SEL selector, CGRect frame) {
  self = objc::sendSuper<LockView*>(objc::classOf<UIView>(), self, selector, frame);
  const auto [width, height] = frame.size;
  auto& lockScreen = stateOfView(self);
  lockScreen.clock = makeLabel(self, {{0, 22}, {width, 92}}, {FontWeight::kThin, 78, 1});
  lockScreen.day = makeLabel(self, {{0, 110}, {width, 22}}, {FontWeight::kRegular, 16.5, 1});
  lockScreen.hint = makeLabel(self, {{0, height - 66}, {width, 32}}, {FontWeight::kLight, 22, 0.7});
  lockScreen.hint->setText("slide to unlock"_ns);
  return self;
}

void addUnderlay(LockView* self, SEL, NSString* requester) {
  if (requester == nullptr) return;
  auto& requesters = stateOfView(self).requesters;
  const std::string name = requester->UTF8String();
  if (std::find(requesters.begin(), requesters.end(), name) == requesters.end()) requesters.push_back(name);
}

void removeUnderlay(LockView* self, SEL, NSString* requester) {
  if (requester == nullptr) return;
  std::erase(stateOfView(self).requesters, std::string(requester->UTF8String()));
}

/// What clock and hint leave for the list and for plug-in screens.
CGRect listRoom(CGSize screen) {
  constexpr double kTop = 146;
  constexpr double kBottomMargin = 78;
  return {{0, kTop}, {screen.width, std::max(screen.height - kTop - kBottomMargin, 0.0)}};
}

/// Makes the picture that lies behind everything, in the screen's pixels.
const Surface& background(LockView* self) {
  auto& lockScreen = stateOfView(self);
  Surface& wallpaper = lockScreen.wallpaper;
  Surface& underlay = lockScreen.underlay;
  const Surface& chosen = lockScreen.chosenWallpaper;
  const double scale = UIScreen::mainScreen()->scale();
  const CGSize size = self->bounds().size;
  const int width = static_cast<int>(std::round(size.width * scale));
  const int height = static_cast<int>(std::round(size.height * scale));
  if (wallpaper == nullptr) {
    wallpaper = chosen == nullptr ? ownWallpaper(width, height) : fillingCopy(chosen, width, height);
  }
  if (lockScreen.requesters.empty()) return wallpaper;
  if (underlay == nullptr && wallpaper != nullptr) {
    constexpr double kBlurPoints = 18;
    constexpr double kDarkness = 0.28;
    underlay = blurredCopy(wallpaper, static_cast<int>(kBlurPoints * scale));
    if (underlay != nullptr) darken(underlay, kDarkness);
  }
  return underlay;
}

void drawRect(LockView* self, SEL, CGRect bounds) {
  cairo_t* const canvas = currentCanvas();
  if (canvas == nullptr) return;
  if (const Surface& picture = background(self); picture != nullptr) drawSurface(canvas, picture, bounds);
  drawStatusBar(canvas, bounds.size.width);
  drawGrabbers(canvas, bounds.size);
  const auto& lockScreen = stateOfView(self);
  if (!lockScreen.isPlaying) return;
  const CGRect room = listRoom(bounds.size);
  drawNowPlayingControls(canvas, room);
  if (!lockScreen.listView || shownRows(lockScreen.listView.get()).empty()) drawNowPlayingArt(canvas, room);
}

void placeList(LockView* self) {
  const auto& lockScreen = stateOfView(self);
  if (!lockScreen.listView) return;
  CGRect frame = listRoom(self->bounds().size);
  if (lockScreen.isPlaying) {
    const double taken = std::min<double>(kNowPlayingControlsHeight, frame.size.height);
    frame.origin.y += taken;
    frame.size.height -= taken;
  }
  lockScreen.listView->setFrame(frame);
}

}  // namespace

ClassDefinition sbLockScreenView() {
  return {.name = "SBLockScreenView",
          .superclass = "UIView",
          .state = state<LockScreenState>(),
          .methods = {
              method("initWithFrame:", initWithFrame),
              method("drawRect:", drawRect),
              method("_addLockContentUnderlayWithRequester:", addUnderlay),
              method("_removeLockContentUnderlayWithRequester:", removeUnderlay),
          }};
}

const std::vector<std::string>& underlayRequesters(LockView* view) { return stateOfView(view).requesters; }

void setListView(LockView* view, SBLockScreenNotificationListView* listView) {
  if (view == nullptr) return;
  auto& shown = stateOfView(view).listView;
  shown->removeFromSuperview();
  shown = objc::Owned<SBLockScreenNotificationListView>::retain(listView);
  if (listView == nullptr) return;
  view->addSubview(listView);
  placeList(view);
}

void setNowPlaying(LockView* view, bool isPlaying) {
  stateOfView(view).isPlaying = isPlaying;
  placeList(view);
}

void setShownTime(LockView* view, NSDate* time) {
  stateOfView(view).clock->setText(clockText(time));
  stateOfView(view).day->setText(todayText(time));
}

void setWallpaper(LockView* view, Surface picture) {
  auto& lockScreen = stateOfView(view);
  lockScreen.chosenWallpaper = std::move(picture);
  lockScreen.wallpaper = nullptr;
  lockScreen.underlay = nullptr;
}

}  // namespace phone
