// URL texts and store files of any form, met by both rows: nothing breaks, the entry of the event in use is
// written, and nothing of another event is lost.
#include "phone/uikit/ui_switch.h"
#include "tests/tavimo/editor/recording_calendar.h"
#include "tests/tavimo/support/objects.h"

namespace phone {
namespace {

/// Opens the event's view and flips the switch in its row.
void flipInView(RecordingCalendar& phone, EKEvent* event) {
  const auto view = phone.view(event);
  NSObject* const item = RecordingCalendar::detailItems(view.get())->objectAtIndex(2);
  cellOf(item);
  RecordingCalendar::appear(view.get());
  flipSwitch(objc::send<"dndSwitch", UISwitch*>(item));
}

void chooseInEditor(RecordingCalendar& phone, EKEvent* event, bool shown) {
  const auto editor = phone.openEditor(event);
  RecordingCalendar::choose(editor.get(), shown);
  RecordingCalendar::close(editor.get());
}

TEST(HostileStore, UrlTextsOfAnyContent) {
  RecordingCalendar phone;
  phone.hide({"kept"});
  const std::string endless(100'000, 'u');
  const std::pair<std::string, std::string> texts[] = {
      {endless + "?o=1", endless},
      {endless, endless},
      {"?o=1", ""},
      {"?o=1?o=2", ""},
      {"", ""},
      {"a://b?o=1?o=2", "a://b"},
      {"a://b?x=1?o=2", "a://b?x=1"},
      {"a://no-occurrence", "a://no-occurrence"},
      {"a://b?O=1", "a://b?O=1"},
      {"a://?o", "a://?o"},
      {"a://<&>\"'?o=1", "a://<&>\"'"},
      {"a://]]>?o=1", "a://]]>"},
      {"a://\U0001F4C5\U0001F600?o=\U0001F600", "a://\U0001F4C5\U0001F600"},
      {"a://?o=\u0301", "a://"},
      {"a://e\u0301?o=1", "a://e\u0301"},
      {" a://\t?o=1", " a://\t"},
  };
  for (const auto& [url, key] : texts) {
    SCOPED_TRACE(url.substr(0, 40));
    const auto event = phone.event(url);
    const Store hidden = {{{"kept", "N"}, {key, "N"}}};
    const Store shown = {{{"kept", "N"}}};
    flipInView(phone, event.get());
    EXPECT_EQ(phone.store(), hidden);
    EXPECT_FALSE(RecordingCalendar::isShown(phone.openEditor(event.get()).get()));
    chooseInEditor(phone, event.get(), true);
    EXPECT_EQ(phone.store(), shown);
    chooseInEditor(phone, event.get(), false);
    EXPECT_EQ(phone.store(), hidden);
    flipInView(phone, event.get());
    EXPECT_EQ(phone.store(), shown);
  }
}

TEST(HostileStore, FilesThatAreNoStoreAreReplacedByTheNextWrite) {
  RecordingCalendar phone;
  const std::string head = "<?xml version=\"1.0\"?><plist version=\"1.0\">";
  for (const std::string& content :
       {head + "<array><string>a://</string></array></plist>", head + "<dict><key>a://</key><str",
        std::string("bplist00\xFF\xFF\xFF"), std::string(1000, '\0'), std::string(),
        head + "<string>a://</string></plist>"}) {
    SCOPED_TRACE(content.substr(0, 60));
    writeBytes(phone.storeFile(), content);
    const auto event = phone.event("a://?o=1");
    EXPECT_TRUE(RecordingCalendar::isShown(phone.openEditor(event.get()).get()));
    flipInView(phone, event.get());
    EXPECT_EQ(phone.store(), (Store{{{"a://", "N"}}}));
  }
}

std::string storeOf(const std::string& entries) {
  return "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>" + entries + "</dict></plist>";
}

TEST(HostileStore, HundredThousandEntriesAreKept) {
  RecordingCalendar phone;
  std::string all;
  for (int i = 0; i < 100'000; ++i) all += "<key>a://" + std::to_string(i) + "</key><string>N</string>";
  writeBytes(phone.storeFile(), storeOf(all));
  const auto event = phone.event("a://50000?o=1");
  const auto editor = phone.openEditor(event.get());
  EXPECT_FALSE(RecordingCalendar::isShown(editor.get()));
  RecordingCalendar::choose(editor.get(), true);
  RecordingCalendar::close(editor.get());
  const std::string left = bytesOf(phone.storeFile());
  std::size_t count = 0;
  for (std::size_t at = left.find("<key>"); at != std::string::npos; at = left.find("<key>", at + 1)) ++count;
  EXPECT_EQ(count, 99'999U);
  EXPECT_EQ(left.find("<key>a://50000<"), std::string::npos);
}

TEST(HostileStore, EntryOfAnyValueHides) {
  RecordingCalendar phone;
  writeBytes(phone.storeFile(), storeOf("<key>a://</key><false/><key>b://</key><array/>"));
  for (const char* const url : {"a://?o=1", "b://?o=1"}) {
    const auto event = phone.event(url);
    EXPECT_FALSE(RecordingCalendar::isShown(phone.openEditor(event.get()).get())) << url;
  }
}

TEST(HostileStore, ThatCannotBeWrittenLeavesTheSwitchAsTheUserPutIt) {
  RecordingCalendar phone;
  std::filesystem::create_directory(phone.storeFile());
  const auto event = phone.event("a://?o=1");
  const auto view = phone.view(event.get());
  NSObject* const item = RecordingCalendar::detailItems(view.get())->objectAtIndex(2);
  cellOf(item);
  flipSwitch(objc::send<"dndSwitch", UISwitch*>(item));
  EXPECT_FALSE((objc::send<"showOnLockscreen", bool>(item)));
  EXPECT_FALSE((objc::send<"dndSwitch", UISwitch*>(item)->isOn()));
  chooseInEditor(phone, event.get(), false);
  EXPECT_TRUE(std::filesystem::is_directory(phone.storeFile()));
  EXPECT_EQ(phone.calls(), Texts{"complete 1 animated"}) << "the host goes on";
}

}  // namespace
}  // namespace phone
