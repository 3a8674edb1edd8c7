// The phone's calendar process, driven as its user drives it: opens event views and editors, flips switches,
// edits fields, closes editors.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "phone/calendarui/calendar_screen.h"
#include "phone/calendarui/edit_action.h"
#include "phone/calendarui/ek_event_edit_view_controller.h"
#include "phone/calendarui/event_fields.h"
#include "phone/foundation/host_options.h"
#include "platform/calendarui/ek_event_view_controller.h"
#include "platform/eventkit/ek_event_store.h"
#include "platform/foundation/autorelease_pool.h"

namespace phone {

/// One per process: classes can be registered only once. Screens that it opens are borrowed and live until
/// they are closed; several can be open at once.
class CalendarProcess {
 public:
  /// Starts Foundation, registers the classes, loads the plug-in, if any (an empty path: none), and connects
  /// to the calendar database. Throws as startFoundation() and loadPlugin() do.
  static CalendarProcess boot(const HostOptions& options, const std::filesystem::path& pluginLibrary = {});
  CalendarProcess(const CalendarProcess&) = delete;
  CalendarProcess& operator=(const CalendarProcess&) = delete;
  ~CalendarProcess();

  /// The connection that all screens share (borrowed).
  EKEventStore* store() const { return store_.get(); }

  /// Shows an event; the view that was in front disappears below it. Throws std::runtime_error when there is
  /// no event of that identifier.
  EKEventViewController* openEvent(const std::string& identifier);
  /// The same for the occurrence of a repeating event that starts then (seconds since 1 January 2001 UTC).
  EKEventViewController* openOccurrence(const std::string& identifier, double start);
  /// Leaves the event view in front; the one below it comes back. Does nothing without one.
  void goBack();
  /// The event view in front, or nil.
  EKEventViewController* frontView() const;

  /// Opens an editor: from the event view in front, for any event (as another window does), for a new one.
  /// Each throws std::runtime_error: when there is no such view or event, or no usable calendar database.
  EKEventEditor* editFrontEvent();
  EKEventEditor* editEvent(const std::string& identifier);
  EKEventEditor* newEvent();

  /// Types into an editor's fields. Throws as enterFields() does.
  void enter(EKEventEditor* editor, const EventFields& fields);

  /// Presses Done, Cancel or Delete Event. False when the phone refused, which the last alert explains: the
  /// editor is still open then.
  bool close(EKEventEditor* editor, EditAction action);

  /// The screen of an open editor or event view, as data or as a picture. The latter throws
  /// std::runtime_error when it would be too large.
  CalendarScreen screenOf(UIViewController* controller) const;
  Surface pictureOf(UIViewController* controller) const;

  /// Flips the switch in the row of that text, if it is not in that position yet. Throws std::runtime_error
  /// when the screen has no such row.
  void setSwitch(UIViewController* controller, const std::string& row, bool on);

 private:
  struct OpenEditor {
    objc::Owned<EKEventEditViewController> frame;
    /// The screen around an editor for a new event; nil otherwise.
    objc::Owned<UIViewController> addScreen;
    /// The event view that the editor covers (borrowed), or nil.
    EKEventViewController* coveredView;
  };

  CalendarProcess();
  EKEventViewController* show(EKEvent* event);
  EKEventEditor* open(EKEvent* event, EKEventViewController* coveredView, bool isNew);
  void dropViewsOfDeletedEvents();

  AutoreleasePool pool_;
  objc::Owned<EKEventStore> store_;
  std::vector<objc::Owned<EKEventViewController>> views_;
  std::vector<OpenEditor> editors_;
};

}  // namespace phone
