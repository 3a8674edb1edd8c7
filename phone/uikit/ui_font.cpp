#include "phone/uikit/ui_font.h"

#include <functional>

#include "phone/objc/class_definition.h"
#include "phone/uikit/definitions.h"
#include "phone/uikit/font_map.h"

namespace phone {

namespace {

struct FontState {
  std::shared_ptr<TypeFace> face;
};

UIFont* systemFontOfSize(Class, SEL, CGFloat points) {
  return makeFont(FontWeight::kRegular, points).autorelease();
}

UIFont* boldSystemFontOfSize(Class, SEL, CGFloat points) {
  return makeFont(FontWeight::kSemibold, points).autorelease();
}

UIFont* fontWithSize(UIFont* self, SEL, CGFloat points) {
  return makeFont(typeFaceOf(self).weight(), points).autorelease();
}

CGFloat pointSize(UIFont* self, SEL) { return typeFaceOf(self).points(); }
CGFloat ascender(UIFont* self, SEL) { return typeFaceOf(self).ascent(); }
CGFloat descender(UIFont* self, SEL) { return -typeFaceOf(self).descent(); }
CGFloat lineHeight(UIFont* self, SEL) { return typeFaceOf(self).ascent() + typeFaceOf(self).descent(); }
NSString* familyName(UIFont*, SEL) { return NSString::stringWithUTF8String(kSystemFontFamily); }

bool isEqual(UIFont* self, SEL, NSObject* other) {
  if (other == nullptr || !other->isKindOfClass(objc::classOf<UIFont>())) return false;
  const TypeFace& mine = typeFaceOf(self);
  const TypeFace& theirs = *stateOf<FontState>(other).face;
  return mine.weight() == theirs.weight() && mine.points() == theirs.points();
}

NSUInteger hash(UIFont* self, SEL) {
  return std::hash<double>()(typeFaceOf(self).points()) * 31 +
         static_cast<NSUInteger>(typeFaceOf(self).weight());
}

}  // namespace

objc::Owned<UIFont> makeFont(FontWeight weight, double points) {
  auto font = objc::make<UIFont>();
  stateOf<FontState>(font.get()).face = TypeFace::find(weight, points);
  return font;
}

TypeFace& typeFaceOf(UIFont* font) { return *stateOf<FontState>(font).face; }

ClassDefinition uiFont() {
  return {.name = "UIFont",
          .superclass = "NSObject",
          .state = state<FontState>(),
          .methods = {
              classMethod("systemFontOfSize:", systemFontOfSize),
              classMethod("boldSystemFontOfSize:", boldSystemFontOfSize),
              method("fontWithSize:", fontWithSize),
              method("pointSize", pointSize),
              method("ascender", ascender),
              method("descender", descender),
              method("lineHeight", lineHeight),
              method("familyName", familyName),
              method("isEqual:", isEqual),
              method("hash", hash),
          }};
}

}  // namespace phone
