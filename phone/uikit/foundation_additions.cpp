#include "phone/uikit/foundation_additions.h"

#include "phone/objc/class_definition.h"
#include "phone/uikit/ui_font.h"
#include "platform/uikit/ns_index_path.h"

namespace phone {

namespace {

NSIndexPath* indexPathForRow(Class self, SEL, NSInteger row, NSInteger section) {
  const NSUInteger indexes[] = {static_cast<NSUInteger>(section), static_cast<NSUInteger>(row)};
  return objc::send<"indexPathWithIndexes:length:", NSIndexPath*>(self, const_cast<NSUInteger*>(indexes),
                                                                  NSUInteger{2});
}

NSInteger indexAt(NSIndexPath* self, NSUInteger position) {
  return static_cast<NSInteger>(objc::send<"indexAtPosition:", NSUInteger>(self, position));
}

NSInteger section(NSIndexPath* self, SEL) { return indexAt(self, 0); }
NSInteger row(NSIndexPath* self, SEL) { return indexAt(self, 1); }

CGSize sizeWithFont(NSString* self, SEL, UIFont* font) {
  return font == nullptr ? CGSize{} : typeFaceOf(font).measure(self);
}

void add(Class target, const MethodDefinition& definition) {
  class_addMethod(target, sel_registerTypedName(definition.selector, definition.types),
                  definition.implementation, definition.types);
}

}  // namespace

void addFoundationMethods() {
  Class const indexPath = objc::classOf<NSIndexPath>();
  add(object_getClass(objc::asObject(indexPath)), classMethod("indexPathForRow:inSection:", indexPathForRow));
  add(indexPath, method("section", section));
  add(indexPath, method("row", row));
  add(objc::classOf<NSString>(), method("sizeWithFont:", sizeWithFont));
}

}  // namespace phone
