// Writes the plug-in's pane for the phone's Settings to standard output: a property list with one native row
// for each setting, out of the table that the `phone` command goes by. The loader for such panes needs no
// code of ours.
#include <cctype>
#include <cstdlib>
#include <iostream>

#include "phone/app/settings_table.h"

namespace {

using contract::Choice;
using contract::Setting;
using contract::SettingKind;

/// The name of the settings file, without folder and ending.
constexpr std::string_view kDomain = [] {
  std::string_view name = contract::kSettingsFile;
  name.remove_prefix(name.rfind('/') + 1);
  name.remove_suffix(std::string_view(".plist").size());
  return name;
}();

/// Writes a property list in XML, a line for each value.
class PropertyListWriter {
 public:
  explicit PropertyListWriter(std::ostream& out) : out_(out) {
    out_ << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n";
  }
  ~PropertyListWriter() { out_ << "</plist>\n"; }
  PropertyListWriter(const PropertyListWriter&) = delete;
  PropertyListWriter& operator=(const PropertyListWriter&) = delete;

  void open(const char* container) { out_ << "<" << container << ">\n"; }
  void close(const char* container) { out_ << "</" << container << ">\n"; }
  void key(std::string_view name) { element("key", name); }
  void text(std::string_view value) { element("string", value); }
  void number(long value) { element("integer", std::to_string(value)); }
  void flag(bool value) { out_ << (value ? "<true/>\n" : "<false/>\n"); }

  void text(std::string_view name, std::string_view value) {
    key(name);
    text(value);
  }

 private:
  void element(const char* tag, std::string_view content) {
    out_ << "<" << tag << ">";
    for (const char c : content) {
      switch (c) {
        case '&':
          out_ << "&amp;";
          break;
        case '<':
          out_ << "&lt;";
          break;
        default:
          out_ << c;
      }
    }
    out_ << "</" << tag << ">\n";
  }

  std::ostream& out_;
};

/// "customLaunchAppBundleID" as people read it: "Custom Launch App Bundle ID".
std::string labelOf(std::string_view key) {
  std::string label;
  for (std::size_t i = 0; i < key.size(); ++i) {
    const bool startsWord = i > 0 && std::isupper(key[i]) != 0 && std::islower(key[i - 1]) != 0;
    if (startsWord) label += ' ';
    label += i == 0 ? static_cast<char>(std::toupper(key[i])) : key[i];
  }
  return label;
}

/// "not-for-events-alone" as people read it: "Not for events alone".
std::string titleOf(std::string_view choice) {
  std::string title(choice);
  for (char& c : title) c = c == '-' ? ' ' : c;
  title.front() = static_cast<char>(std::toupper(title.front()));
  return title;
}

/// What stands below a setting's row.
std::string footerOf(const Setting& setting) {
  const bool isListed = setting.kind == SettingKind::kFlag || setting.kind == SettingKind::kChoice;
  std::string footer(setting.meaning);
  return isListed ? footer + "." : footer + ": " + phone::rangeOf(setting) + ".";
}

void writeChoices(PropertyListWriter& out, const Setting& setting) {
  out.text("detail", "PSListItemsController");
  out.key("validValues");
  out.open("array");
  for (const Choice& choice : setting.choices) out.number(choice.number);
  out.close("array");
  out.key("validTitles");
  out.open("array");
  for (const Choice& choice : setting.choices) out.text(titleOf(choice.name));
  out.close("array");
}

/// The row's kind, and what a row of that kind needs besides.
void writeKind(PropertyListWriter& out, const Setting& setting) {
  switch (setting.kind) {
    case SettingKind::kFlag:
      out.text("cell", "PSSwitchCell");
      out.key("default");
      out.flag(setting.fallback != 0);
      break;
    case SettingKind::kChoice:
      out.text("cell", "PSLinkListCell");
      out.key("default");
      out.number(setting.fallback);
      writeChoices(out, setting);
      break;
    case SettingKind::kNumber:
      out.text("cell", "PSEditTextCell");
      out.key("isNumeric");
      out.flag(true);
      out.key("default");
      out.number(setting.fallback);
      break;
    case SettingKind::kText:
    case SettingKind::kIcon:
      out.text("cell", "PSEditTextCell");
      out.text("default", setting.fallbackText);
  }
}

void writeSetting(PropertyListWriter& out, const Setting& setting) {
  out.open("dict");
  out.text("cell", "PSGroupCell");
  out.text("footerText", footerOf(setting));
  out.close("dict");
  out.open("dict");
  out.text("label", labelOf(setting.key));
  out.text("key", setting.key);
  out.text("defaults", kDomain);
  writeKind(out, setting);
  out.close("dict");
}

void writePane(PropertyListWriter& out) {
  out.open("dict");
  out.key("entry");
  out.open("dict");
  out.text("cell", "PSLinkCell");
  out.text("icon", "Tavimo.png");
  out.text("label", "Tavimo");
  out.close("dict");
  out.text("title", "Tavimo");
  out.key("items");
  out.open("array");
  for (const Setting& setting : contract::kSettings) writeSetting(out, setting);
  out.close("array");
  out.close("dict");
}

}  // namespace

int main() {
  {
    PropertyListWriter out(std::cout);
    writePane(out);
  }
  return std::cout.flush() ? EXIT_SUCCESS : EXIT_FAILURE;
}
