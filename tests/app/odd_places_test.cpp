// The command among what a hostile user puts in its way: pictures into odd files, closed streams, texts that
// are none, a phone that cannot be made.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/app/command.h"

namespace phone {
namespace {

namespace fs = std::filesystem;

constexpr const char* kPngSignature = "\x89PNG\r\n";

/// What no user may ever read: the words of the libraries underneath.
void expectOwnWords(const CommandResult& result, const std::string& use) {
  for (const char* foreign : {"filesystem error", "GNUSTEP", "Uncaught", "terminate called", "output stream",
                              "malformed", "std::", "basic_"}) {
    EXPECT_EQ(result.errors.find(foreign), std::string::npos) << use << "\n" << result.errors;
  }
  EXPECT_LE(std::count(result.errors.begin(), result.errors.end(), '\n'), 2) << use << "\n" << result.errors;
}

TEST(OddPlaces, APictureGoesWhereItsNameLeads) {
  const Workplace workplace;
  workplace.output({"create"});
  workplace.output({"event", "new", "--title", "Dentist", "--start", "2026-03-07T17:00"});
  const std::string verbs[] = {"lockscreen", "event show Dentist", "event edit Dentist --cancel",
                               "event new --title x --start 2026-03-08"};
  for (const std::string& verb : verbs) {
    const std::string phone = "phone " + verb + " --png ";
    const CommandResult piped = workplace.shell(phone + "- | head -c 6");
    EXPECT_EQ(piped.exitCode, 0) << verb << piped.errors;
    EXPECT_EQ(piped.output, kPngSignature) << verb;
    EXPECT_NE(piped.errors, "") << verb << ": the text goes to the standard error";
    EXPECT_EQ(workplace.shell(phone + "/dev/stdout >whole.png; head -c 6 whole.png").output, kPngSignature)
        << verb;
    EXPECT_EQ(workplace.shell(phone + "/dev/null >text; test -c /dev/null && test -s text").exitCode, 0)
        << verb;
    EXPECT_EQ(workplace.shell(phone + ">(head -c 6 >part); sleep 0.2; cat part").output.substr(0, 6).size(),
              6U);
    EXPECT_EQ(workplace
                  .shell("ln -sf far.png near.png; rm -f far.png; " + phone +
                         "near.png >text; test -L near.png && head -c 6 far.png")
                  .output,
              kPngSignature)
        << verb;
  }
  const CommandResult full = workplace.shell("phone lockscreen --png /dev/full");
  EXPECT_EQ(full.exitCode, 1);
  EXPECT_NE(full.errors.find("/dev/full"), std::string::npos) << full.errors;
}

TEST(OddPlaces, NumbersAreWholeFiniteAndInBounds) {
  const Workplace workplace;
  workplace.output({"create"});
  const std::vector<std::vector<std::string>> options{{"lockscreen", "--scale"},
                                                      {"lockscreen", "--size"},
                                                      {"lockscreen", "--scroll"},
                                                      {"lockscreen", "--tap"},
                                                      {"event", "list", "--days"}};
  for (const std::vector<std::string>& option : options) {
    for (const char* number : {"nan", "inf", "-inf", "1e999", "-1", "0", "", "0x10", "1.5.1", "two",
                               "nanx300", "300xinf", "1e9x300", "99999999999999999999999", "-0.0"}) {
      std::vector<std::string> words = option;
      words.emplace_back(number);
      const CommandResult result = workplace.phone(words);
      EXPECT_EQ(result.exitCode, 2) << testing::PrintToString(words) << result.errors;
      EXPECT_NE(result.errors.find(option.back()), std::string::npos) << result.errors;
      EXPECT_LT(result.errors.size(), 200U) << result.errors;
    }
  }
  EXPECT_EQ(workplace.phone({"event", "list", "--days", "010"}).exitCode, 0);
  EXPECT_EQ(workplace.phone({"lockscreen", "--scale", "2.5", "--size", "100x2000"}).exitCode, 0);
}

TEST(OddPlaces, TextsThatAreNoneAreNamedInOneLine) {
  const Workplace workplace;
  workplace.output({"create"});
  const CommandResult results[] = {
      workplace.phone({"event", "new", "--title", "caf\xE9", "--start", "2026-03-07"}),
      workplace.phone({"\xFF"}),
      workplace.phone({"settings", "list"}, {{"HOME", "/home/\xC3"}}),
      workplace.shell("mkdir $'\\xE9' && cd $'\\xE9' && phone --root ../phone-root lockscreen"),
  };
  for (const CommandResult& result : results) {
    EXPECT_NE(result.exitCode, 0);
    EXPECT_NE(result.errors.find("is no UTF-8 text"), std::string::npos) << result.errors;
    EXPECT_NE(result.errors.find("\\x"), std::string::npos) << result.errors;
    EXPECT_EQ(std::count(result.errors.begin(), result.errors.end(), '\n'), 1) << result.errors;
  }
  EXPECT_EQ(workplace.output({"event", "list", "--now", "2026-03-01"}).find("2026"), std::string::npos);
}

TEST(OddPlaces, ATerminalIsNotGivenCommands) {
  const Workplace workplace;
  workplace.output({"create"});
  const std::string evil = "\x1B[31mred\x07\xC2\x9B";
  workplace.output(
      {"event", "new", "--title", evil, "--start", "2026-03-07T17:00", "--calendar", "Calendar"});
  const std::string shown = workplace.output({"event", "list", "--now", "2026-03-07"}) +
                            workplace.output({"lockscreen", "--now", "2026-03-07", "--log"}) +
                            workplace.phone({"hide", evil + "?"}).errors + workplace.phone({evil}).errors;
  EXPECT_NE(shown.find("red"), std::string::npos);
  EXPECT_EQ(shown.find_first_of("\x1B\x07"), std::string::npos);
  EXPECT_EQ(shown.find("\xC2\x9B"), std::string::npos);
}

TEST(OddPlaces, AReaderThatGoesAwayIsNoError) {
  const Workplace workplace;
  workplace.output({"create"});
  // The reader is gone before the first line; whoever started the command may have ignored the signal.
  for (const char* trap : {"", "trap '' PIPE; "}) {
    const CommandResult result = workplace.shell(
        trap + std::string("{ sleep 0.3; phone settings list; echo $? >code; } | true; cat code"));
    EXPECT_EQ(result.output, "0\n");
    EXPECT_EQ(result.errors, "");
  }
}

TEST(OddPlaces, ClosedStreamsHurtNoFile) {
  const Workplace workplace;
  workplace.output({"create"});
  EXPECT_EQ(workplace.shell("phone event new --title Dentist --start 2026-03-07 <&- >&- 2>&-").exitCode, 1)
      << "the output could not be written";
  EXPECT_EQ(workplace.shell("phone settings list >&-").errors, "phone: the output could not be written\n");
  EXPECT_NE(workplace.output({"event", "list", "--now", "2026-03-01"}).find("Dentist"), std::string::npos);
}

TEST(OddPlaces, APhoneIsMadeWholeOrNotAtAll) {
  const Workplace workplace;
  workplace.shell("mkdir empty; ln -s loop loop; touch file");
  const CommandResult refused[] = {
      workplace.shell("ulimit -f 0; phone create --root a/b/c"),
      workplace.shell("ulimit -f 0; phone create --root empty"),
      workplace.shell("phone create --root loop"),
      workplace.shell("phone create --root file/phone"),
      workplace.shell("TZ=Nowhere/Land phone create --root d/e"),
      workplace.shell("mkdir gone && cd gone && rmdir ../gone && phone create"),
  };
  for (const CommandResult& result : refused) {
    EXPECT_EQ(result.exitCode, 1) << result.errors;
    expectOwnWords(result, "create");
  }
  EXPECT_EQ(workplace.shell("find . | sort").output, ".\n./empty\n./file\n./loop\n");
  workplace.output({"create", "--root", "a/b/c/"});
  workplace.output({"create", "--root", "empty"});
  EXPECT_EQ(workplace.shell("cd a/b/c && ls -A").output, "Applications\nvar\n");
  EXPECT_EQ(workplace.shell("diff -r a/b/c empty").exitCode, 0);
}

TEST(OddPlaces, EveryErrorIsInOurWords) {
  const Workplace workplace;
  workplace.output({"create"});
  const std::string lines[] = {
      "cd /proc/self/fd && phone lockscreen",
      "phone lockscreen --root phone-root --png phone-root",
      "phone import phone-root/var/nothing /dev/null",
      "phone import loop",
      "phone lockscreen --plugin .",
      "phone lockscreen --plugin phone-root/Applications/MobileCal.app/icon-about@2x.png",
      "phone lockscreen --wallpaper /dev/zero",
      "phone --root $(printf 'n%.0s' {1..5000}) create",
      "phone settings list >/dev/full",
      "mkdir phone-root/var/mobile/Library/Preferences/org.quenmark.tavimoprefs.plist; phone settings list",
      "mkfifo phone-root/var/mobile/Library/Preferences/org.quenmark.tavimo.sorting.plist; phone order show",
      "phone order events-first",
      "phone order none",
      "mkfifo library.so; timeout 20 phone lockscreen --plugin library.so",
      "mkdir -p phone-root/var/mobile/Library/Preferences/org.quenmark.tavimo.events.plist/x; phone event "
      "new "
      "--title x --start 2026-03-07 --show-on-lockscreen off",
  };
  workplace.shell("ln -s loop loop");
  for (const std::string& line : lines) {
    const CommandResult result = workplace.shell(line);
    EXPECT_NE(result.exitCode, 0) << line;
    EXPECT_LT(result.exitCode, 3) << line << "\n" << result.errors;
    EXPECT_NE(result.errors, "") << line;
    expectOwnWords(result, line);
  }
  EXPECT_TRUE(
      fs::is_fifo(workplace.onPhone("var/mobile/Library/Preferences/org.quenmark.tavimo.sorting.plist")));
  // The root has no name to give a calendar. Whether there are calendars below it is the machine's affair.
  const CommandResult fromRoot = workplace.shell("phone import /");
  EXPECT_LT(fromRoot.exitCode, 2) << fromRoot.errors;
  expectOwnWords(fromRoot, "phone import /");
}

TEST(OddPlaces, APhoneThatMayNotBeLookedAtIsNotMissing) {
  const Workplace workplace;
  workplace.output({"create"});
  const std::string user = geteuid() == 0 ? "setpriv --reuid 65534 --clear-groups " : "";
  const CommandResult result =
      workplace.shell("chmod 755 .; chmod 000 phone-root; " + user + "phone lockscreen");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.errors.find("phone-root: Permission denied"), std::string::npos) << result.errors;
  workplace.shell("chmod 755 phone-root");
}

}  // namespace
}  // namespace phone
