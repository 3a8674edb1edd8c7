#include "phone/calendarui/calendar_process.h"

#include <algorithm>
#include <stdexcept>

#include "phone/calendarui/add_event_view_controller.h"
#include "phone/calendarui/calendarui.h"
#include "phone/calendarui/ek_event_editor.h"
#include "phone/calendarui/ek_event_view_controller.h"
#include "phone/eventkit/eventkit.h"
#include "phone/foundation/foundation.h"
#include "phone/objc/plugin.h"
#include "phone/uikit/ui_switch.h"
#include "phone/uikit/uikit.h"
#include "platform/eventkit/ek_event.h"
#include "platform/foundation/ns_array.h"
#include "platform/foundation/ns_date.h"

namespace phone {

namespace {

bool isEditor(UIViewController* controller) {
  return controller->isKindOfClass(objc::classOf<EKEventEditor>());
}

const ItemTable& rowsOf(UIViewController* controller) {
  return isEditor(controller) ? tableOf(static_cast<EKEventEditor*>(controller))
                              : tableOf(static_cast<EKEventViewController*>(controller));
}

void appear(UIViewController* controller) { controller->viewWillAppear(true); }

void disappear(UIViewController* controller) { controller->viewWillDisappear(true); }

ScreenBar barOf(UIViewController* controller) {
  if (!isEditor(controller)) return {"Event Details", "‹ Back", "Edit"};
  const bool isNew = controller->parentViewController()->parentViewController() != nullptr;
  if (isNew) return {"New Event", "Cancel", "Add"};
  return {"Edit Event", "Cancel", "Done", "Delete Event"};
}

/// Borrowed. Throws std::runtime_error when there is none, or when the calendar cannot be read.
EKEvent* findEvent(EKEventStore* store, const std::string& identifier) {
  EKEvent* const event = store->eventWithIdentifier(NSString::stringWithUTF8String(identifier.c_str()));
  if (event == nullptr && !calendarStoreProblem().empty()) throw std::runtime_error(calendarStoreProblem());
  if (event == nullptr) throw std::runtime_error("there is no event \"" + identifier + "\"");
  return event;
}

}  // namespace

CalendarProcess CalendarProcess::boot(const HostOptions& options,
                                      const std::filesystem::path& pluginLibrary) {
  startFoundation(options);
  {
    // Gone before the process makes its own pool: pools end in the reverse order of their making.
    const AutoreleasePool pool;
    registerUIKit();
    registerEventKit();
    registerCalendarUI();
    if (!pluginLibrary.empty()) loadPlugin(pluginLibrary);
  }
  return {};
}

CalendarProcess::CalendarProcess() : store_(objc::make<EKEventStore>()) {}

CalendarProcess::~CalendarProcess() = default;

EKEventViewController* CalendarProcess::frontView() const {
  return views_.empty() ? nullptr : views_.back().get();
}

EKEventViewController* CalendarProcess::openEvent(const std::string& identifier) {
  const AutoreleasePool pool;
  return show(findEvent(store(), identifier));
}

EKEventViewController* CalendarProcess::openOccurrence(const std::string& identifier, double start) {
  const AutoreleasePool pool;
  // An identifier alone means the first occurrence; a search of the moment finds the one that starts then.
  NSArray* const found = store()->eventsMatchingPredicate(
      store()->predicateForEvents(NSDate::dateWithTimeIntervalSinceReferenceDate(start),
                                  NSDate::dateWithTimeIntervalSinceReferenceDate(start + 1), nullptr));
  for (NSUInteger i = 0; i < found->count(); ++i) {
    auto* const event = static_cast<EKEvent*>(found->objectAtIndex(i));
    const bool isMeant = event->eventIdentifier()->UTF8String() == identifier &&
                         event->startDate()->timeIntervalSinceReferenceDate() == start;
    if (isMeant) return show(event);
  }
  return show(findEvent(store(), identifier));
}

EKEventViewController* CalendarProcess::show(EKEvent* event) {
  auto view = makeEventViewController(event, store());
  disappear(frontView());
  views_.push_back(std::move(view));
  appear(frontView());
  return frontView();
}

void CalendarProcess::goBack() {
  if (views_.empty()) return;
  const AutoreleasePool pool;
  disappear(frontView());
  views_.pop_back();
  appear(frontView());
}

EKEventEditor* CalendarProcess::open(EKEvent* event, EKEventViewController* coveredView, bool isNew) {
  OpenEditor opened{makeEditViewController(event, store(), coveredView), {}, coveredView};
  if (isNew) opened.addScreen = makeAddEventViewController(opened.frame.get());
  editors_.push_back(std::move(opened));
  EKEventEditor* const editor = editors_.back().frame->editor();
  disappear(coveredView);
  appear(editor);
  return editor;
}

EKEventEditor* CalendarProcess::editFrontEvent() {
  const AutoreleasePool pool;
  EKEventViewController* const view = frontView();
  if (view == nullptr) throw std::runtime_error("no event is shown, so there is nothing to edit");
  // The editor changes an event object of its own: a cancelled change leaves no trace in the view.
  return open(findEvent(store(), view->event()->eventIdentifier()->UTF8String()), view, false);
}

EKEventEditor* CalendarProcess::editEvent(const std::string& identifier) {
  const AutoreleasePool pool;
  return open(findEvent(store(), identifier), nullptr, false);
}

EKEventEditor* CalendarProcess::newEvent() {
  const AutoreleasePool pool;
  return open(makeNewEvent(store()), nullptr, true);
}

void CalendarProcess::enter(EKEventEditor* editor, const EventFields& fields) {
  const AutoreleasePool pool;
  enterFields(static_cast<EKEvent*>(editor->calendarItem()), store(), fields);
  reloadRows(editor);
}

bool CalendarProcess::close(EKEventEditor* editor, EditAction action) {
  const AutoreleasePool pool;
  editor->completeWithAction(static_cast<NSInteger>(action), true);
  const auto place = std::ranges::find_if(
      editors_, [editor](const OpenEditor& each) { return each.frame->editor() == editor; });
  if (place == editors_.end() || isOpen(place->frame.get())) return false;
  const OpenEditor closed = std::move(*place);
  editors_.erase(place);
  disappear(editor);
  const bool isDeleted = action == EditAction::kDeleted;
  if (isDeleted) {
    if (closed.coveredView == nullptr) disappear(frontView());
    dropViewsOfDeletedEvents();
  }
  if (isDeleted || closed.coveredView != nullptr) appear(frontView());
  return true;
}

void CalendarProcess::dropViewsOfDeletedEvents() {
  // The event may be shown more than once, and a series is deleted together with its changed repetitions.
  const auto isGone = [this](const objc::Owned<EKEventViewController>& view) {
    return !hasEvent(view.get()) ||
           (store()->eventWithIdentifier(view->event()->eventIdentifier()) == nullptr &&
            calendarStoreProblem().empty());
  };
  std::erase_if(views_, isGone);
}

CalendarScreen CalendarProcess::screenOf(UIViewController* controller) const {
  const AutoreleasePool pool;
  return describe(barOf(controller), rowsOf(controller));
}

Surface CalendarProcess::pictureOf(UIViewController* controller) const {
  const AutoreleasePool pool;
  return drawScreen(barOf(controller), rowsOf(controller));
}

void CalendarProcess::setSwitch(UIViewController* controller, const std::string& row, bool on) {
  const AutoreleasePool pool;
  for (const auto& group : rowsOf(controller).groups) {
    for (const auto& cell : group) {
      UISwitch* const found = switchIn(cell.get());
      if (found == nullptr || rowOf(cell.get()).text != row) continue;
      if (found->isOn() != on) flipSwitch(found);
      return;
    }
  }
  throw std::runtime_error("the screen has no switch \"" + row + "\"");
}

}  // namespace phone
