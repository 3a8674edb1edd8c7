// Which underlay requests reach the host under which name, and what is recorded on the way.
#include "phone/uikit/ui_view.h"
#include "platform/foundation/ns_number.h"
#include "tests/tavimo/presentation/recording_lock_screen.h"

namespace phone {
namespace {

Texts ask(RecordingLockScreen& phone, NSString* requester) {
  objc::send<"_addLockContentUnderlayWithRequester:">(phone.view(), requester);
  return phone.calls();
}

/// The plug-in screen's name that the host's next count would remove, as a call.
std::string recordedRequester(RecordingLockScreen& phone) {
  const auto mode = std::exchange(exported<NSInteger>("wallpaperBlurMode"), 2);
  objc::send<"count", NSUInteger>(phone.controller());
  exported<NSInteger>("wallpaperBlurMode") = mode;
  const Texts calls = phone.calls();
  return calls.size() == 2 ? calls.back() : "called " + std::to_string(calls.size()) + " times";
}

TEST(Underlay, ModeAndListDecideAboutListAndPluginScreens) {
  RecordingLockScreen phone;
  const struct {
    const char* name;
    bool decided;
  } requesters[] = {{"NotificationList", true},          {"OverlayContext", true},
                    {"OverlayContext-NowPlaying", true}, {"XOverlayContext", false},
                    {"NotificationListX", false},        {"notificationlist", false},
                    {"SBLockScreenCamera", false},       {"", false}};
  enum List { kEmpty, kOwnOnly, kCustomOnly, kWithSystemNotification };
  for (const List list : {kEmpty, kOwnOnly, kCustomOnly, kWithSystemNotification}) {
    if (list == kOwnOnly) phone.add("Tavimo 0");
    if (list == kCustomOnly) phone.add("Pellanor 0");
    if (list == kWithSystemNotification) phone.addRecord(nullptr, "SBAwayCardListItem");
    const bool onlyCustom = list == kOwnOnly || list == kCustomOnly;
    for (const NSInteger mode : {0, 1, 2, 3, -1}) {
      exported<NSInteger>("wallpaperBlurMode") = mode;
      SCOPED_TRACE("list " + std::to_string(list) + ", mode " + std::to_string(mode));
      const bool suppressed = mode == 2 || (mode == 1 && onlyCustom);
      for (const auto& [name, decided] : requesters) {
        EXPECT_EQ(ask(phone, textOrNone(name)),
                  decided && suppressed ? Texts{} : Texts{std::string("underlay ") + name});
      }
      EXPECT_EQ(ask(phone, "OrvNotificationList"_ns), Texts{"underlay NotificationList"});
      EXPECT_EQ(ask(phone, nullptr), Texts{"underlay none"});
      EXPECT_EQ(ask(phone, reinterpret_cast<NSString*>(NSNumber::numberWithInteger(7))), Texts{"underlay 7"})
          << "a requester that is no text";
    }
  }
  exported<NSInteger>("wallpaperBlurMode") = 2;
  exported<bool>("isEnabled") = false;
  for (const char* const name : {"NotificationList", "OverlayContext1", "OrvNotificationList"}) {
    EXPECT_EQ(ask(phone, textOrNone(name)), Texts{std::string("underlay ") + name});
  }
  EXPECT_EQ(RecordingLockScreen::log(), Texts{});
}

TEST(Underlay, BeforeTheListLoadedOnlyMode2Suppresses) {
  RecordingLockScreen phone;
  exported<NSObject*>("sBLockScreenNotificationListController") = nullptr;
  for (const NSInteger mode : {0, 1, 2}) {
    exported<NSInteger>("wallpaperBlurMode") = mode;
    EXPECT_EQ(ask(phone, "NotificationList"_ns).size(), mode == 2 ? 0U : 1U) << mode;
    EXPECT_EQ(ask(phone, "OverlayContext1"_ns).size(), mode == 2 ? 0U : 1U) << mode;
  }
}

TEST(Underlay, RemembersTheLastPluginScreenAlsoOfARefusedRequest) {
  RecordingLockScreen phone;
  phone.add("Tavimo 0");
  exported<NSInteger>("wallpaperBlurMode") = 2;
  EXPECT_EQ(recordedRequester(phone), "no underlay none");
  exported<bool>("isEnabled") = false;
  ask(phone, "OverlayContext-disabled"_ns);
  exported<bool>("isEnabled") = true;
  EXPECT_EQ(recordedRequester(phone), "no underlay none") << "a request while disabled is not recorded";
  EXPECT_EQ(ask(phone, "OverlayContext-1"_ns), Texts{});
  EXPECT_EQ(recordedRequester(phone), "no underlay OverlayContext-1");
  ask(phone, "NotificationList"_ns);
  ask(phone, "an OverlayContext-2"_ns);
  EXPECT_EQ(recordedRequester(phone), "no underlay OverlayContext-1");
  exported<NSInteger>("wallpaperBlurMode") = 0;
  {
    // The plug-in keeps the name, not the caller's object.
    const AutoreleasePool pool;
    ask(phone, NSString::stringWithFormat("OverlayContext-%@"_ns, "a name made for the call"_ns));
  }
  EXPECT_EQ(recordedRequester(phone), "no underlay OverlayContext-a name made for the call");
}

TEST(Underlay, LaterViewBecomesTheTarget) {
  RecordingLockScreen phone;
  EXPECT_EQ(exported<NSObject*>("sBLockScreenView"), phone.view());
  exported<bool>("isEnabled") = false;
  const auto second = makeView<SBLockScreenView>();
  EXPECT_EQ(exported<NSObject*>("sBLockScreenView"), second.get()) << "also while disabled";
}

TEST(Underlay, TellsItsDecisionInDebugMode) {
  RecordingLockScreen phone;
  exported<bool>("debugMode") = true;
  const struct {
    const char* requester;
    NSInteger mode;
    const char* line;
  } requests[] = {
      {"OrvNotificationList", 2,
       "TVM: adding wallpaper underlay for context NotificationList, by my request"},
      {"NotificationList", 2, "TVM: supressing wallpaper underlay for NotificationList"},
      {"OverlayContext1", 2, "TVM: supressing wallpaper underlay for OverlayContext1"},
      {"NotificationList", 0, "TVM: not supressing wallpaper underlay for context: NotificationList"},
      {"Camera", 2, "TVM: not supressing wallpaper underlay for context: Camera"},
  };
  for (const auto& [requester, mode, line] : requests) {
    exported<NSInteger>("wallpaperBlurMode") = mode;
    ask(phone, textOrNone(requester));
    EXPECT_EQ(RecordingLockScreen::log(), Texts{line});
  }
  exported<bool>("isEnabled") = false;
  ask(phone, "OrvNotificationList"_ns);
  EXPECT_EQ(RecordingLockScreen::log(),
            Texts{"TVM: not supressing wallpaper underlay for context: OrvNotificationList"});
}

}  // namespace
}  // namespace phone
