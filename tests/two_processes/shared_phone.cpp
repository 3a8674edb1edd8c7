#include "tests/two_processes/shared_phone.h"

#include <stdexcept>

#include "phone/calendarui/calendar_process.h"
#include "phone/foundation/property_list.h"
#include "platform/eventkit/ek_event.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_array.h"
#include "platform/foundation/ns_mutable_dictionary.h"
#include "tests/support/built.h"
#include "tests/two_processes/child_process.h"

namespace phone::test {

namespace {

// The lock screen shows no events on a phone whose calendar application was never used, so this one's was.
constexpr char kCalendarPreferences[] = "com.apple.mobilecal.plist";

}  // namespace

SharedPhone::SharedPhone(std::string release) : release_(std::move(release)) {
  std::filesystem::create_directories(preferences());
  const AutoreleasePool pool;
  writePropertyList(objc::make<NSMutableDictionary>().get(), preferences() / kCalendarPreferences);
}

HostOptions SharedPhone::options() const {
  return {.root = root_.path(), .release = release_, .now = kFive - 14'400, .timeZone = "Europe/Berlin"};
}

std::filesystem::path SharedPhone::preferences() const {
  return root_.path() / "var/mobile/Library/Preferences";
}

std::string SharedPhone::addEvent(const std::string& title) const {
  const ChildResult result = runInChild([&] {
    auto calendar = CalendarProcess::boot(options(), pluginLibrary());
    EKEventEditor* const editor = calendar.newEvent();
    const auto event = objc::Owned<EKEvent>::retain(static_cast<EKEvent*>(editor->calendarItem()));
    calendar.enter(editor, {.title = title, .start = kFive});
    if (!calendar.close(editor, EditAction::kSaved)) throw std::runtime_error("The event was not saved.");
    return std::string(event->eventIdentifier()->UTF8String());
  });
  if (!result.exitedClean) throw std::runtime_error(result.output);
  return result.output;
}

void SharedPhone::flip(const std::string& event, int times) const {
  auto calendar = CalendarProcess::boot(options(), pluginLibrary());
  EKEventViewController* const view = calendar.openEvent(event);
  for (int i = 0; i < times; ++i) calendar.setSwitch(view, kRow, i % 2 != 0);
}

void SharedPhone::writeStore(const std::vector<std::string>& keys) const {
  const AutoreleasePool pool;
  auto entries = objc::make<NSMutableDictionary>();
  for (const std::string& key : keys) {
    entries->setObject("N"_ns, NSString::stringWithUTF8String(key.c_str()));
  }
  writePropertyList(entries.get(), store());
}

std::set<std::string> SharedPhone::readStore() const {
  const AutoreleasePool pool;
  const auto root = readPropertyList(store());
  if (!root->isKindOfClass(objc::classOf<NSDictionary>())) {
    throw std::runtime_error("The store is no dictionary.");
  }
  std::set<std::string> keys;
  auto* const all = objc::send<"allKeys", NSArray*>(root.get());
  for (NSUInteger i = 0; i < all->count(); ++i) {
    keys.insert(static_cast<NSString*>(all->objectAtIndex(i))->UTF8String());
  }
  return keys;
}

std::set<std::string> SharedPhone::filesBesideStore() const {
  std::set<std::string> names;
  for (const auto& file : std::filesystem::directory_iterator(preferences())) {
    if (file.path().filename() != kCalendarPreferences) names.insert(file.path().filename());
  }
  return names;
}

std::vector<std::string> otherKeys(std::size_t count) {
  std::vector<std::string> keys;
  for (std::size_t i = 0; i < count; ++i) {
    keys.push_back("x-apple-calevent://elsewhere/older-" + std::to_string(i));
  }
  return keys;
}

}  // namespace phone::test
