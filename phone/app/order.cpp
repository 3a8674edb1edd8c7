// phone order: where the events stand among the phone's own notifications.
#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>

#include "contract/ordering.h"
#include "phone/app/phone_files.h"
#include "phone/app/verbs.h"
#include "platform/foundation/literal.h"

namespace phone {

namespace {

using contract::kEventGroup;
using contract::kSystemGroup;

void write(const std::vector<std::string>& groups) {
  auto* const list = NSMutableArray::array();
  for (const std::string& group : groups) list->addObject(textObject(group));
  writeFile(contract::kOrderingFile, list);
}

/// What the plug-in makes of the list: it counts in years from now, the phone sorts by date.
std::string effectOf(NSArray* groups) {
  const NSUInteger notifications = groups->indexOfObject(constantText<kSystemGroup>());
  const NSUInteger events = groups->indexOfObject(constantText<kEventGroup>());
  if (notifications == NSNotFound || events == NSNotFound)
    return "No order: every item stands at its own date.";
  if (events < notifications && events <= 10) return "The events come before the phone's own notifications.";
  if (events < notifications)
    return "The events stand too far back to come before the phone's own notifications.";
  return "The events come after the phone's own notifications.";
}

void show() {
  const auto groups = readArray(contract::kOrderingFile);
  for (NSUInteger i = 0; i < groups->count(); ++i) {
    NSString* const name = objc::asKind<NSString>(groups->objectAtIndex(i));
    std::cout << i << "  " << (name == nullptr ? "(no text)" : utf8(name)) << "\n";
  }
  std::cout << effectOf(groups.get()) << "\n";
}

void addFixedOrder(CLI::App& order, const Invocation& invocation, const std::string& name,
                   const std::string& description, const std::vector<std::string>& groups) {
  addVerb(order, name, description, "phone order " + name)->callback([&invocation, groups] {
    invocation.openPhone();
    groups.empty() ? removeFile(contract::kOrderingFile) : write(groups);
  });
}

}  // namespace

void addOrderVerb(CLI::App& command, const Invocation& invocation) {
  CLI::App* const order =
      addVerb(command, "order", "Put the events before or after the phone's own notifications",
              "phone order events-first");
  order->require_subcommand(1);
  addVerb(*order, "show", "Show the groups in their order", "phone order show")->callback([&invocation] {
    invocation.openPhone();
    show();
  });
  addFixedOrder(*order, invocation, "events-first", "The events first", {kEventGroup, kSystemGroup});
  addFixedOrder(*order, invocation, "notifications-first", "The phone's own notifications first",
                {kSystemGroup, kEventGroup});
  addFixedOrder(*order, invocation, "none", "Every item at its own date, as without an order", {});
  CLI::App* const set =
      addVerb(*order, "set",
              std::string("Set the whole list; \"") + kEventGroup + "\" stands for the events, \"" +
                  kSystemGroup + "\" for the phone's own notifications, others only take a place",
              "phone order set Reminders Orvessa \"System Items\"");
  const auto groups = std::make_shared<std::vector<std::string>>();
  set->add_option("GROUP", *groups, "The groups' names, topmost first")->required();
  set->callback([&invocation, groups] {
    invocation.openPhone();
    write(*groups);
  });
}

}  // namespace phone
