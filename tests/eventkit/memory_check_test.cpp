#include "phone/calendarstore/memory_check.h"

#include <gtest/gtest.h>

namespace phone {
namespace {

TEST(MemoryCheck, TellsOfMemoryThatWasMissingSinceItsMaking) {
  // As malloc() says it.
  errno = ENOMEM;
  const MemoryCheck check;
  EXPECT_FALSE(check.wasShort());
  EXPECT_NO_THROW(check.require());
  errno = ENOMEM;
  EXPECT_TRUE(check.wasShort());
  EXPECT_THROW(check.require(), std::bad_alloc);
}

}  // namespace
}  // namespace phone
