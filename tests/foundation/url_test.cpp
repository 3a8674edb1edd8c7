// URLs: which texts are URLs, and that they come back as they were.
#include <gtest/gtest.h>

#include "phone/foundation/foundation.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_url.h"
#include "platform/objc/owned.h"

namespace phone {
namespace {

std::string roundTrip(const std::string& text) {
  NSURL* const url = NSURL::URLWithString(NSString::stringWithUTF8String(text.c_str()));
  return url == nullptr ? "none" : url->absoluteString()->UTF8String();
}

TEST(Url, TextComesBackUnchanged) {
  const AutoreleasePool pool;
  startFoundation({.root = "/phone"});
  for (const std::string text : {
           "fantastical2://show?date=2014-3-7",
           "fantastical2://show?date=2014-3-7&note=a/b?c",
           "fantastical2://show#part",
           "fantastical2://?date=2014-3-7",
           "http://host:8080?x=1",
           "http://host",
           "http://host/?x=1",
           "fantastical2:show?x=1",
           "x-apple-calevent://CALENDAR/UID?o=415879200",
           "x-apple-calevent://CALENDAR:2/UID:3?o=415879200",
           "x-apple-calevent://CALENDAR/UID?o=1?o=2",
           "x-apple-calevent://CALENDAR/UID@HOST?o=-5",
           "x-apple-calevent://CALENDAR/U%40D%20?o=1",
           "x-apple-calevent://CALENDAR?o=1",
           "?o=1",
       }) {
    EXPECT_EQ(roundTrip(text), text);
  }
  const std::string large = "x-apple-calevent://CALENDAR/" + std::string(100'000, 'u') + "?o=1";
  EXPECT_EQ(roundTrip(large), large);
}

TEST(Url, WhatIsNoUrlIsNone) {
  const AutoreleasePool pool;
  startFoundation({.root = "/phone"});
  for (const char* const text :
       {"a b", "fantastical2://show?date=a b", "fantastical2://sh ow?date=1", "http://host/ü"}) {
    EXPECT_EQ(roundTrip(text), "none") << text;
  }
}

TEST(Url, MendedUrlBehavesAsOneWithoutPath) {
  const AutoreleasePool pool;
  startFoundation({.root = "/phone"});
  NSURL* const url = NSURL::URLWithString("fantastical2://show?date=2014-3-7"_ns);
  const auto part = [&](const char* name) -> std::string {
    return objc::send<NSString*>(url, sel_registerName(name))->UTF8String();
  };
  EXPECT_EQ(part("scheme"), "fantastical2");
  EXPECT_EQ(part("host"), "show");
  EXPECT_EQ(part("path"), "");
  EXPECT_EQ(part("query"), "date=2014-3-7");
  EXPECT_EQ(part("description"), "fantastical2://show?date=2014-3-7");
  EXPECT_TRUE(url->isKindOfClass(objc::classOf<NSURL>()));
  const auto copy = objc::Owned<NSURL>::adopt(objc::send<"copy", NSURL*>(url));
  EXPECT_TRUE(url->isEqual(copy.get()));
  EXPECT_TRUE(url->isEqual(NSURL::URLWithString("fantastical2://show?date=2014-3-7"_ns)));
  EXPECT_FALSE(url->isEqual(NSURL::URLWithString("fantastical2://show?date=2014-3-8"_ns)));
}

}  // namespace
}  // namespace phone
