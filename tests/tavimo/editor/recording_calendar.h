// A calendar process whose screens only note what reaches their own methods, and whose events and lists are
// what the test says: of any length, with any URL text. It can lack what some release of the phone might
// lack.
#pragma once

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "phone/foundation/log_sink.h"
#include "platform/calendarui/ek_event_detail_item.h"
#include "platform/calendarui/ek_event_editor.h"
#include "platform/calendarui/ek_event_view_controller.h"
#include "platform/eventkit/ek_event.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_mutable_array.h"
#include "platform/objc/ivar.h"
#include "platform/uikit/ui_switch.h"
#include "platform/uikit/ui_table_view_cell.h"
#include "tests/foundation/temporary_folder.h"

namespace phone {

using Texts = std::vector<std::string>;
/// The entries of the hidden-event store; none when it is no dictionary of texts, or missing.
using Store = std::optional<std::map<std::string, std::string>>;

struct CalendarShape {
  double foundationVersion = 1144.17;
  bool editorHasEditItems = true;
  bool editorHasGroups = true;
  /// Of an editor's rows; that of the phone is what the plug-in's own row extends.
  const char* editItemClass = "EKEventEditItem";
  /// Whether there is the class that the plug-in's detail item extends.
  bool hasDetailItemClass = true;
};

/// What an editor is made with.
struct EditorShape {
  std::size_t fields = 12;
  /// Lengths of the groups that the fields are shown in.
  std::vector<std::size_t> groups = {3, 3, 2, 2, 2};
  /// What the editor keeps in place of its groups.
  std::optional<NSObject*> oddGroups = {};
  const char* parentClass = "EKEventEditViewController";
  const char* grandparentClass = "UINavigationController";
};

/// One per process. The plug-in is loaded.
class RecordingCalendar {
 public:
  explicit RecordingCalendar(const CalendarShape& shape = {});

  /// An event with that URL text; none: an event without URL.
  objc::Owned<EKEvent> event(std::optional<std::string> urlText);
  static void setUrlText(EKCalendarItem* event, std::optional<std::string> urlText);
  /// Gives the event a URL that has no text.
  static void setTextlessUrl(EKCalendarItem* event);

  objc::Owned<EKEventEditor> editor(EKCalendarItem* event, const EditorShape& shape = {});
  /// An editor that has built its list, with the plug-in's item.
  objc::Owned<EKEventEditor> openEditor(EKCalendarItem* event);
  static NSArray* editItems(EKEventEditor* editor) { return objc::send<"_editItems", NSArray*>(editor); }
  /// The plug-in's item in the editor's list (borrowed), or none; there must not be more than one.
  static NSObject* ownItem(EKEventEditor* editor);
  /// The user flips the switch in the editor's row.
  static void choose(EKEventEditor* editor, bool shown);
  static bool isShown(EKEventEditor* editor);
  static void close(EKEventEditor* editor, NSInteger action = 1, bool animated = true) {
    objc::send<"completeWithAction:animated:">(editor, action, animated);
  }
  /// Runs when the host completes an editing.
  std::function<void()>& whileCompleting();

  /// An event view whose list holds items of these classes.
  objc::Owned<EKEventViewController> view(EKEvent* event, const Texts& itemClasses = {
                                                              "EKEventDetailItem", "EKEventAlarmDetailItem",
                                                              "EKEventDetailItem"});
  /// What its list is built of from now on.
  static void setItems(EKEventViewController* view, const Texts& itemClasses);
  static NSArray* detailItems(EKEventViewController* view) { return objc::send<"_items", NSArray*>(view); }
  /// Runs when the host makes a view appear or disappear.
  std::function<void()>& whileChangingViews();
  static void appear(EKEventViewController* view) { objc::send<"viewWillAppear:">(view, true); }
  static void disappear(EKEventViewController* view) { objc::send<"viewWillDisappear:">(view, false); }

  /// What reached the host since the last call, a line each; forgets it.
  Texts calls();
  /// What was logged since the last call; forgets it.
  static Texts log();

  std::filesystem::path storeFile() const;
  Store store() const;
  /// Writes a store with an entry for each of these keys.
  void hide(const Texts& keys) const;

 private:
  TemporaryFolder root_;
  AutoreleasePool pool_;
};

/// The item's row, asked for as the host's table does.
inline UITableViewCell* cellOf(NSObject* item, NSUInteger index = 0) {
  return objc::send<"cellForSubitemAtIndex:inSubsection:", UITableViewCell*>(item, index, NSUInteger{7});
}

/// The classes of the items, in order.
Texts classesOf(NSArray* items);

}  // namespace phone
