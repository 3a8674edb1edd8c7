// phone create: an empty phone in a folder.
#include <CLI/CLI.hpp>
#include <iostream>

#include "phone/app/phone_files.h"
#include "phone/app/phone_in_the_making.h"
#include "phone/app/printable.h"
#include "phone/app/verbs.h"
#include "phone/foundation/foundation.h"
#include "phone/foundation/phone_root.h"
#include "phone/springboard/stock_icons.h"

namespace phone {

namespace {

namespace fs = std::filesystem;

/// A phone is not made over anything: neither over another phone nor among files that are none of its.
void makeSureThereIsRoom(const fs::path& root) {
  if (!fs::exists(root)) return;
  if (!fs::is_directory(root)) throw std::runtime_error(root.string() + " is there, and is no folder");
  if (fs::is_directory(root / "var/mobile/Library")) {
    throw std::runtime_error("there is a phone in " + root.string() +
                             " already; remove that folder first to start afresh");
  }
  if (!fs::is_empty(root)) throw std::runtime_error(root.string() + " is not empty; name a new folder");
}

void create(const fs::path& root) {
  makeSureThereIsRoom(root);
  PhoneInTheMaking made(fs::absolute(root));
  startFoundation({.root = made.workshop()});
  installStockIcons(made.workshop());
  for (const char* folder : {"/var/mobile/Library/Preferences", "/var/mobile/Library/Calendar"}) {
    fs::create_directories(pathOnThisMachine(folder));
  }
  // The Calendar app keeps its choices from its first start on; without the file no calendar counts as shown.
  writeFile(contract::kCalendarAppPreferencesFile, NSMutableDictionary::dictionary());
  made.finish({"Applications", "var"});
  std::cout << "made a phone in " << printable(root.string()) << "\n";
}

}  // namespace

void addCreateVerb(CLI::App& command, const Invocation& invocation) {
  addVerb(command, "create", "Make a new, empty phone in the folder that --root names",
          "phone create --root my-phone")
      ->callback([&invocation] { create(invocation.rootName()); });
}

}  // namespace phone
