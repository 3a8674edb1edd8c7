// Where the arguments of a call lie on a 32-bit phone and under 32-bit Linux.
#include "device/emulated/argument_places.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace device {
namespace {

using Words = std::vector<unsigned>;

TEST(ArgumentPlaces, Only64BitNumbersMove) {
  const struct {
    const char* encoding;
    bool isResultInMemory;
    Words here;
  } rows[] = {
      {"v@:", false, {0, 1}},
      // With receiver and selector before it, a first number is at an even word on both.
      {"@@:d", false, {0, 1, 2, 3}},
      {"v@::@d", false, {0, 1, 2, 3, 4, 5}},
      {"v@:@d", false, {0, 1, 2, 4, 5}},
      // What follows a gap does not fill it.
      {"d@:@qcd", false, {0, 1, 2, 4, 5, 6, 8, 9}},
      // A function of an object and a number, as no method has it.
      {"@@d", false, {0, 2, 3}},
      // Rectangles are floats; as a result one takes the first word for its place.
      {"v@:{CGRect={CGPoint=ff}{CGSize=ff}}@", false, {0, 1, 2, 3, 4, 5, 6}},
      {"{CGRect=ffff}@:@d", true, {0, 1, 2, 3, 4, 5}},
      {"{CGSize=ff}@:d", true, {0, 1, 2, 4, 5}},
      // As compilers write it, with qualifiers, names of classes, blocks, pointers and offsets.
      {"Vv28@0:4@\"NSDate\"8r^{Zone=dd}12@?16r*20Q24", false, {0, 1, 2, 3, 4, 5, 6, 7}},
  };
  for (const auto& [encoding, isResultInMemory, here] : rows) {
    const ArgumentPlaces places = argumentPlaces(encoding);
    EXPECT_EQ(places.isResultInMemory, isResultInMemory) << encoding;
    EXPECT_EQ(places.here, here) << encoding;
  }
}

TEST(ArgumentPlaces, WhatCouldBePassedInOtherWaysIsRefused) {
  for (const char* encoding : {"{Small=i}@:", "v@:{Bytes=cc}", "v@:{Gap=id}", "v@:(Union=if)", "v@:[4i]",
                               "v@:{Open=i", "v@:@\"Open", "v@:^", ""}) {
    EXPECT_THROW(argumentPlaces(encoding), std::runtime_error) << encoding;
  }
}

TEST(ArgumentPlaces, FormatsSayHowLongTheirArgumentsAre) {
  EXPECT_EQ(formatArgumentWords("x://%@?o=%.1f"), (Words{1, 2}));
  EXPECT_EQ(formatArgumentWords("%lu-%5ld 100%% %*.*g %llx %s%c"), (Words{1, 1, 1, 1, 2, 2, 1, 1}));
  EXPECT_EQ(formatArgumentWords("%"), Words{});
  EXPECT_EQ(formatArgumentWords("100 %l"), Words{});
}

}  // namespace
}  // namespace device
