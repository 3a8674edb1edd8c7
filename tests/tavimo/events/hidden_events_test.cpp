// The hidden-event store as the lock screen reads it: keys, entries of any value, and files of any content.
#include <gtest/gtest.h>

#include "phone/foundation/log_sink.h"
#include "tests/tavimo/support/script.h"

namespace phone {
namespace {

TEST(HiddenEvents, KeyIsTheTextBeforeTheOccurrence) {
  LockScreen phone;
  const struct {
    std::optional<std::string> url;
    const char* key;
    bool isHidden = true;
  } rows[] = {{"a://b?o=1", "a://b"},
              {"a://b?o=1?o=2", "a://b"},
              {"a://b?x=1?o=2", "a://b?x=1"},
              {"a://b?o=", "a://b"},
              {"a://b?O=1", "a://b?O=1"},
              {"a://b?O=1", "a://b", false},
              {"a://b", "a://b"},
              {"a://b/c&d?o=1", "a://b/c&amp;d"},
              {"a://b?o=1", "a://b?o=1", false},
              {"a://b?o=1", "a://", false},
              {"a://B?o=1", "a://b", false},
              {"?o=1", ""},
              {std::nullopt, "", false},
              {"a://" + std::string(100'000, 'x') + "?o=1", nullptr}};
  for (const auto& [url, key, isHidden] : rows) {
    SCOPED_TRACE(url.value_or("none").substr(0, 40));
    ScriptedEvent event = titled("event");
    event.url = url;
    scriptedStore().events = {event};
    const std::string entry = key == nullptr ? url->substr(0, url->size() - 4) : key;
    phone.write(kHiddenEvents, "<dict><key>" + entry + "</key><string>N</string></dict>");
    phone.makeController();
    phone.load();
    EXPECT_EQ(phone.rows().empty(), isHidden);
  }
}

TEST(HiddenEvents, EntryOfAnyValueHidesAllOccurrences) {
  LockScreen phone;
  scriptedStore().events = {titled("one"), titled("one"), titled("two")};
  scriptedStore().events[1]->url = "x-apple-calevent://RED/one?o=417000000";
  for (const char* value : {"<string>N</string>", "<string>Y</string>", "<string/>", "<integer>0</integer>",
                            "<false/>", "<dict/>", "<array><string>N</string></array>"}) {
    phone.write(kHiddenEvents,
                "<dict><key>x-apple-calevent://RED/one</key>" + std::string(value) + "</dict>");
    phone.makeController();
    phone.load();
    EXPECT_EQ(phone.titles(), (Lines{"two"})) << value;
    EXPECT_EQ(phone.rows()[0].identifier, "Tavimo 2");
    EXPECT_EQ(exported<NSInteger>("tvmItemsCount"), 3);
  }
}

TEST(HiddenEvents, FileThatIsNoDictionaryHidesNothing) {
  LockScreen phone;
  scriptedStore().events = {titled("one")};
  const std::string entry = "<key>x-apple-calevent://RED/one</key><string>N</string>";
  const auto expectShown = [&](const std::string& what) {
    phone.makeController();
    clearLog();
    phone.load();
    EXPECT_EQ(phone.titles(), (Lines{"one"})) << what;
    EXPECT_EQ(loggedWith("hidden events"), (Lines{"TVM: hidden events:\r\n {}"})) << what;
  };
  expectShown("missing");
  for (const std::string& bytes :
       {std::string(), propertyList("<array><string>x-apple-calevent://RED/one</string></array>"),
        propertyList("<dict>" + entry), std::string("bplist00broken"), std::string("garbage\0more", 12)}) {
    phone.writePreferences(kHiddenEvents, bytes);
    expectShown(bytes);
  }
  std::filesystem::remove(phone.preferences(kHiddenEvents));
  std::filesystem::create_directory(phone.preferences(kHiddenEvents));
  expectShown("directory");
}

TEST(HiddenEvents, LargeStoreIsReadWhole) {
  LockScreen phone;
  scriptedStore().events = {titled("one"), titled("two")};
  std::string entries;
  for (int i = 0; i < 1000; ++i) entries += "<key>k" + std::to_string(i) + "</key><string>N</string>";
  std::string deep;
  for (int i = 0; i < 500; ++i) deep += "<dict><key>k</key>";
  deep += "<true/>";
  for (int i = 0; i < 500; ++i) deep += "</dict>";
  phone.write(kHiddenEvents, "<dict>" + entries + "<key>x-apple-calevent://RED/one</key>" + deep + "</dict>");
  phone.load();
  EXPECT_EQ(phone.titles(), (Lines{"two"}));
}

}  // namespace
}  // namespace phone
