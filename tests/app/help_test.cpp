// phone help, --version and the manual page.
#include <gtest/gtest.h>
#include <regex>

#include "tests/app/command.h"

namespace phone {
namespace {

TEST(Help, isThatOfTheVerb) {
  const Workplace workplace;
  EXPECT_EQ(workplace.output({"help"}), workplace.output({"--help"}));
  EXPECT_EQ(workplace.output({"help", "event"}), workplace.output({"event", "--help"}));
  EXPECT_EQ(workplace.output({"help", "event", "new"}), workplace.output({"event", "new", "--help"}));
}

TEST(Help, namesTheVersion) {
  const Workplace workplace;
  EXPECT_TRUE(
      std::regex_match(workplace.output({"--version"}), std::regex(R"(phone \(Tavimo\) \d+\.\d+\.\d+\n)")));
}

TEST(ManualPage, isSoundAndHasEveryVerbAndOption) {
  const Workplace workplace;
  // A date would tell when the page was printed, which is no use to a reader.
  const CommandResult check = workplace.shell(
      "phone help --man > phone.1; mandoc -T lint -W warning phone.1 | grep -v 'missing date' || true");
  EXPECT_EQ(check.output, "");
  const std::string page = workplace.shell("mandoc -T utf8 phone.1 | sed 's/.\\x08//g'").output;
  const std::string overview = workplace.output({"help"});
  const std::string help = overview.substr(0, overview.find("Example:"));
  const std::regex verb(R"(\n  ([a-z]+) )");
  std::size_t verbs = 0;
  for (std::sregex_iterator match(help.begin(), help.end(), verb), end; match != end; ++match, ++verbs) {
    EXPECT_NE(page.find("\n   phone " + (*match)[1].str()), std::string::npos) << (*match)[1] << "\n" << page;
  }
  EXPECT_GT(verbs, 10U);
  // An option, its choices and its default; an example as it is to be typed.
  EXPECT_NE(page.find("--ios 7.1|8.1|8.4|9.3"), std::string::npos) << page;
  EXPECT_NE(page.find("The release of the phone's system (default: 8.4)."), std::string::npos) << page;
  EXPECT_NE(page.find("phone event switch \"Team meeting\" off"), std::string::npos) << page;
  EXPECT_EQ(page.find("phone complete "), std::string::npos);
}

}  // namespace
}  // namespace phone
