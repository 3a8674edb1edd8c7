// What a calendar store may say about an event: title, place, identifier, address; and colours as texts. What
// holds for every text: an event is listed with its own title, and not listed once the entry of its address
// is in the hidden-event store, and that entry alone; a colour text gives a colour, and a well-formed one the
// same text again.
#include <algorithm>
#include <cctype>

#include "fuzz/support/sections.h"
#include "fuzz/support/target.h"
#include "phone/calendarstore/database/calendar_color.h"
#include "phone/foundation/property_list.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_mutable_dictionary.h"
#include "platform/foundation/ns_url.h"
#include "platform/uikit/ui_color.h"
#include "tests/tavimo/support/lock_screen.h"
#include "tests/tavimo/support/scripted_event_store.h"

namespace phone::fuzz {

namespace {

class TextsTarget : public Target {
 public:
  void tryInput(std::string_view bytes) override {
    const Sections input = sectionsOf(bytes);
    if (const auto color = section(input, "color")) checkColor(*color);
    const auto address = section(input, "address");
    scriptedStore().events = {ScriptedEvent{.title = section(input, "title"),
                                            .start = kMorning + 60,
                                            .location = section(input, "location"),
                                            .identifier = section(input, "identifier"),
                                            .url = address}};
    phone_.settings("<key>swipeAction</key><integer>" + std::string(address ? "1" : "2") +
                    "</integer><key>displayLocation</key><true/><key>debugMode</key><true/>");
    checkListed(section(input, "title"));
    const auto key = keyOf(address);
    if (!key) return;
    hide(*key + "x");
    checkListed(section(input, "title"));
    hide(*key);
    require(load().empty(), "an event with an entry in the hidden-event store is not listed: " + *key);
    std::filesystem::remove(phone_.preferences(kHiddenEvents));
  }

 private:
  std::vector<ListRow> load() {
    phone_.makeController();
    phone_.load();
    return phone_.rows();
  }

  void checkListed(const std::optional<std::string>& title) {
    const auto rows = load();
    require(rows.size() == 1, "an event that is not hidden is listed");
    // A text that is not UTF-8 is no text.
    NSString* const known = title ? text(*title) : nullptr;
    require(rows[0].title == (known == nullptr ? "" : utf8(known)), "an event has its own title");
    const std::string& opened = rows[0].launchURL;
    require(
        opened.empty() || opened.starts_with("x-apple-calevent://") || opened.starts_with("fantastical2://"),
        "a tap opens a calendar: " + opened);
  }

  /// What stands before the occurrence in the event's address; none when the text is no address.
  static std::optional<std::string> keyOf(const std::optional<std::string>& address) {
    NSString* const given = address ? text(*address) : nullptr;
    NSURL* const url = given == nullptr ? nullptr : NSURL::URLWithString(given);
    if (url == nullptr) return std::nullopt;
    const std::string whole = utf8(url->absoluteString());
    return whole.substr(0, whole.find("?o="));
  }

  void hide(const std::string& key) const {
    NSMutableDictionary* const entries = NSMutableDictionary::dictionary();
    entries->setObject("N"_ns, text(key));
    writePropertyList(entries, phone_.preferences(kHiddenEvents));
  }

  static void checkColor(const std::string& written) {
    parseCalendarColor(written);
    const auto color = objc::Owned<UIColor>::adopt(
        (*pluginSymbol<UIColor*(NSString*)>("colorFromHexString"))(text(written)));
    require(static_cast<bool>(color), "every text gives a colour");
    const std::string again = hexText(color.get());
    require(again.size() == 7 && again[0] == '#' && areDigits(again.substr(1)),
            "a colour's text is # and six digits: " + again);
    if (!isWellFormed(written)) return;
    std::string expected = "#" + written.substr(1, 6);
    std::ranges::transform(expected, expected.begin(), [](unsigned char c) { return std::toupper(c); });
    require(again == expected, "a colour text comes back as it was: " + written + " gives " + again);
  }

  static std::string hexText(UIColor* color) {
    return utf8(
        objc::Owned<NSString>::adopt((*pluginSymbol<NSString*(UIColor*)>("hexStringForColor"))(color)).get());
  }

  /// Any sign, six digits, and two more signs or none. In ASCII a byte is a sign; a zero ends the text.
  static bool isWellFormed(const std::string& color) {
    const bool isAscii = std::ranges::all_of(color, [](unsigned char c) { return c > 0 && c < 0x80; });
    return isAscii && (color.size() == 7 || color.size() == 9) && areDigits(color.substr(1, 6));
  }

  static bool areDigits(const std::string& text) {
    return std::ranges::all_of(text, [](unsigned char c) { return std::isxdigit(c) != 0; });
  }

  LockScreen phone_;
};

}  // namespace

std::unique_ptr<Target> makeTarget() { return std::make_unique<TextsTarget>(); }

}  // namespace phone::fuzz
