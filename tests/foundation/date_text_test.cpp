// Dates as texts, however far away.
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <unistd.h>

#include "phone/foundation/foundation.h"
#include "phone/foundation/log_sink.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_log.h"

namespace phone {
namespace {

TEST(DateText, IsThereForEveryDate) {
  const AutoreleasePool pool;
  startFoundation({.root = "/phone", .timeZone = "Europe/Berlin"});
  // A text that never comes must not keep the suite waiting.
  alarm(20);
  const struct {
    double seconds;
    const char* text;
  } dates[] = {
      {415'879'072.9, "2014-03-07 10:57:52 +0100"},
      {426'247'200, "2014-07-05 12:00:00 +0200"},
      {-0.5, "2001-01-01 00:59:59 +0100"},
      {63'113'904'000.0, "4001-01-01 01:00:00 +0100"},
      {std::numeric_limits<double>::infinity(), "inf seconds from 2001-01-01 00:00:00 +0000"},
      {1e300, "1e+300 seconds from 2001-01-01 00:00:00 +0000"},
  };
  for (const auto& [seconds, text] : dates) {
    EXPECT_STREQ(NSDate::dateWithTimeIntervalSinceReferenceDate(seconds)->description()->UTF8String(), text);
  }
  startFoundation({.root = "/phone", .timeZone = "America/New_York"});
  EXPECT_STREQ(NSDate::dateWithTimeIntervalSinceReferenceDate(415'879'072)->description()->UTF8String(),
               "2014-03-07 04:57:52 -0500");
}

TEST(DateText, OfYearsBeforeTheFirstIsLoggedAtOnce) {
  const AutoreleasePool pool;
  startFoundation({.root = "/phone", .timeZone = "UTC"});
  alarm(20);
  for (const double days : {-730'485.0, -730'486.0, -731'000.0, -2'147'483'648.0}) {
    NSLog("%@"_ns, NSDate::dateWithTimeIntervalSinceReferenceDate(days * 86'400));
  }
  EXPECT_EQ(logLines(),
            (std::vector<std::string>{"0001-01-01 00:00:00 +0000", "0000-12-31 00:00:00 +0000",
                                      "-0001-08-05 00:00:00 +0000", "-5877610-06-23 00:00:00 +0000"}));
}

}  // namespace
}  // namespace phone
