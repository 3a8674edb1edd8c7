// Associated objects: kept as their policy says, and released with their owner.
#include "phone/objc/associated_objects.h"

#include <gtest/gtest.h>

#include "phone/objc/class_definition.h"
#include "phone/objc/unknown_selector.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/literal.h"

namespace phone {
namespace {

constexpr std::uintptr_t kAssign = 0;
constexpr std::uintptr_t kRetainNonatomic = 1;
constexpr std::uintptr_t kCopyNonatomic = 3;
constexpr std::uintptr_t kRetainAtomic = 01401;

using Object = objc::Owned<NSObject>;

int living = 0;
struct Counted {
  Counted() { ++living; }
  ~Counted() { --living; }
};

const char kKey = 0;
const char kOtherKey = 0;

class AssociatedObjects : public testing::Test {
 protected:
  AssociatedObjects() {
    registerClass({.name = "Counted", .superclass = "NSObject", .state = state<Counted>()});
    owner_ = make();
  }
  static Object make() { return Object::adopt(objc::send<"new", NSObject*>(requiredClass("Counted"))); }

  Object owner_;
};

TEST_F(AssociatedObjects, AreReleasedWhenReplacedRemovedAndWithTheirOwner) {
  for (const std::uintptr_t policy : {kRetainNonatomic, kRetainAtomic}) {
    owner_ = make();
    const std::size_t before = associationOwnerCount();
    objc_setAssociatedObject(owner_.get(), &kKey, make().get(), policy);
    EXPECT_EQ(living, 2);
    objc_setAssociatedObject(owner_.get(), &kKey, make().get(), policy);
    EXPECT_EQ(living, 2);
    objc_setAssociatedObject(owner_.get(), &kOtherKey, make().get(), policy);
    EXPECT_EQ(living, 3);
    objc_setAssociatedObject(owner_.get(), &kKey, nullptr, policy);
    EXPECT_EQ(living, 2);
    EXPECT_EQ(objc_getAssociatedObject(owner_.get(), &kKey), nullptr);
    EXPECT_EQ(associationOwnerCount(), before + 1);
    owner_ = Object();
    EXPECT_EQ(living, 0);
    EXPECT_EQ(associationOwnerCount(), before);
  }
}

TEST_F(AssociatedObjects, SettingTheSameObjectAgainKeepsIt) {
  objc::associate(owner_.get(), &kKey, make().get());
  objc::associate(owner_.get(), &kKey, objc::associated<NSObject>(owner_.get(), &kKey));
  EXPECT_EQ(living, 2);
}

TEST_F(AssociatedObjects, ChainsOfOwnersAreReleasedWhole) {
  constexpr int kLength = 1000;
  NSObject* last = owner_.get();
  for (int i = 0; i < kLength; ++i) {
    const Object next = make();
    objc::associate(last, &kKey, next.get());
    last = next.get();
  }
  EXPECT_EQ(living, kLength + 1);
  owner_ = Object();
  EXPECT_EQ(living, 0);
}

TEST_F(AssociatedObjects, PolicyDecidesWhetherTheObjectIsRetainedOrCopied) {
  const AutoreleasePool pool;
  Object value = make();
  objc_setAssociatedObject(owner_.get(), &kKey, value.get(), kAssign);
  value = Object();
  EXPECT_EQ(living, 1);
  const auto text = objc::Owned<NSString>::adopt(static_cast<NSString*>("abc"_ns->mutableCopy()));
  objc_setAssociatedObject(owner_.get(), &kKey, text.get(), kCopyNonatomic);
  objc::send<"appendString:">(text.get(), "def"_ns);
  EXPECT_TRUE(objc::associated<NSString>(owner_.get(), &kKey)->isEqualToString("abc"_ns));
}

TEST_F(AssociatedObjects, NoneOwnsNothing) {
  objc_setAssociatedObject(nullptr, &kKey, owner_.get(), kRetainNonatomic);
  EXPECT_EQ(objc_getAssociatedObject(nullptr, &kKey), nullptr);
}

}  // namespace
}  // namespace phone
