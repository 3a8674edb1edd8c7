// What the items of both calendar screens have in common: each supplies the cells of its rows.
#pragma once

#include <vector>

#include "phone/calendarui/event_rows.h"
#include "phone/calendarui/item_table.h"
#include "phone/objc/class_definition.h"

namespace phone {

/// The row methods of an item base class: one row, whose cell subclasses supply. A request by subsection is
/// one without it.
std::vector<MethodRows> plainItemMethods();

/// A new cell with that text (borrowed), or nil when there are fewer.
UITableViewCell* makeRowCell(const std::vector<RowText>& rows, NSUInteger index);

/// The row methods of an item whose rows are texts about its event, which its method of that name gives.
template <objc::FixedString EventName, EventRows rows>
struct TextItem {
  static std::vector<RowText> texts(NSObject* self) {
    auto* const event = objc::send<EventName, EKEvent*>(self);
    return event == nullptr ? std::vector<RowText>() : rows(event);
  }
  static NSUInteger numberOfSubitems(NSObject* self, SEL) { return texts(self).size(); }
  static UITableViewCell* cellForSubitem(NSObject* self, SEL, NSUInteger index) {
    return makeRowCell(texts(self), index);
  }
  static std::vector<MethodRows> methods() {
    return {method("numberOfSubitems", numberOfSubitems), method("cellForSubitemAtIndex:", cellForSubitem)};
  }
};

}  // namespace phone
