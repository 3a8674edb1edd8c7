#include "tests/tavimo/support/bare_hosts.h"

#include "platform/calendarui/ek_event_detail_item.h"
#include "platform/calendarui/ek_event_edit_item.h"
#include "platform/calendarui/ek_event_editor.h"
#include "platform/foundation/ns_array.h"
#include "platform/uikit/ns_index_path.h"
#include "platform/uikit/ui_image.h"
#include "platform/uikit/ui_table_view.h"
#include "tests/tavimo/support/message_recorder.h"

namespace phone {

namespace {

void registerExcept(std::string_view missingClass, const std::vector<ClassDefinition>& definitions) {
  for (const ClassDefinition& definition : definitions) {
    if (definition.name != missingClass) registerClass(definition);
  }
}

}  // namespace

void registerBareHomeScreen(std::string_view missingClass) {
  constexpr const char* kRoot = "NSObject";
  registerExcept(
      missingClass,
      {{.name = "SpringBoard", .superclass = kRoot},
       {.name = "SBLockScreenPluginOverlayContext",
        .superclass = kRoot,
        .methods = {recorded<id(NSString*, NSObject*, NSObject*)>(
            "initWithPluginName:pluginController:lockScreenViewController:")}},
       {.name = "SBLockScreenNotificationListController",
        .superclass = kRoot,
        .methods = {recorded<NSUInteger()>("count"), recorded<void()>("loadView"),
                    recorded<void(NSObject*)>("turnOnScreenIfNecessaryForItem:")}},
       {.name = "SBAwayBulletinListItem",
        .superclass = kRoot,
        .methods = {recorded<UIImage*()>("iconImage"), recorded<bool()>("canBeClearedByNotificationCenter")}},
       {.name = "SBLockScreenNotificationListView",
        .superclass = kRoot,
        .methods = {recorded<CGFloat(UITableView*, NSIndexPath*)>("tableView:heightForRowAtIndexPath:"),
                    recorded<bool(UITableView*, NSIndexPath*)>("tableView:canEditRowAtIndexPath:")}},
       {.name = "SBLockScreenBulletinCell",
        .superclass = kRoot,
        .methods = {recorded<id(NSInteger, NSString*)>("initWithStyle:reuseIdentifier:"),
                    recorded<void(CGFloat)>("setContentAlpha:"), recorded<void()>("layoutSubviews")}},
       {.name = "SBLockScreenView",
        .superclass = kRoot,
        .methods = {recorded<id(CGRect)>("initWithFrame:"),
                    recorded<void(NSString*)>("_addLockContentUnderlayWithRequester:")}}});
}

void registerBareCalendarScreens(std::string_view missingClass) {
  constexpr const char* kRoot = "NSObject";
  registerExcept(
      missingClass,
      {{.name = "EKEventEditor",
        .superclass = kRoot,
        .methods = {recorded<NSArray*()>("_editItems"),
                    recorded<void(NSInteger, bool)>("completeWithAction:animated:")}},
       {.name = "EKEventViewController",
        .superclass = kRoot,
        .methods = {recorded<void(bool)>("viewWillAppear:"), recorded<void(bool)>("viewWillDisappear:"),
                    recorded<NSArray*()>("_items")}},
       {.name = "EKEventDetailItem",
        .superclass = kRoot,
        .methods = {recorded<void(EKEvent*, EKEventStore*)>("setEvent:store:"),
                    recorded<UITableViewCell*(NSUInteger, NSUInteger)>("cellForSubitemAtIndex:inSubsection:"),
                    recorded<UITableViewCell*(NSUInteger)>("cellForSubitemAtIndex:")}},
       {.name = "EKEventEditItem",
        .superclass = kRoot,
        .methods = {recorded<void(EKCalendarItem*, EKEventStore*)>("setCalendarItem:store:")}}});
}

}  // namespace phone
