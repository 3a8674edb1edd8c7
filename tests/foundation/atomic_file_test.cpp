// Whole-file writes among several processes: never torn, nothing left behind.
#include "phone/foundation/atomic_file.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "tests/foundation/temporary_folder.h"

namespace phone {
namespace {

constexpr std::size_t kSize = 200'000;

class AtomicFile : public testing::Test {
 protected:
  /// A process that writes files full of one letter, `times` times.
  pid_t startWriter(char letter, int times) {
    const pid_t child = fork();
    if (child != 0) return child;
    const std::string content(kSize, letter);
    for (int i = 0; i < times; ++i) writeFileAtomically(file_, content);
    _exit(0);
  }
  /// The one letter that the whole file consists of; '?' for anything else.
  char letterInFile() const {
    const std::string content = readWholeFile(file_);
    if (content.size() != kSize || content.find_first_not_of(content[0]) != std::string::npos) return '?';
    return content[0];
  }
  std::size_t filesInFolder() const {
    const std::filesystem::directory_iterator files(folder_.path());
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
  }

  TemporaryFolder folder_;
  std::filesystem::path file_ = folder_.path() / "store.plist";
};

TEST_F(AtomicFile, TwoWritersAndAReaderNeverSeeHalfAFile) {
  writeFileAtomically(file_, std::string(kSize, 'a'));
  std::vector<pid_t> writers = {startWriter('b', 200), startWriter('c', 200)};
  std::string seen;
  while (!writers.empty()) {
    const char letter = letterInFile();
    ASSERT_NE(letter, '?');
    if (seen.find(letter) == std::string::npos) seen += letter;
    int status = 0;
    if (waitpid(writers.back(), &status, WNOHANG) == writers.back()) {
      EXPECT_EQ(status, 0);
      writers.pop_back();
    }
  }
  EXPECT_GE(seen.size(), 2U) << "the reader saw no change, so nothing was tested";
  EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(AtomicFile, WriterThatIsKilledLeavesTheOldFileOrTheNewAndLaterOnesCleanUp) {
  writeFileAtomically(file_, std::string(kSize, 'a'));
  std::size_t leftBehind = 0;
  for (int i = 0; i < 200; ++i) {
    const pid_t writer = startWriter('b', 1'000'000);
    usleep(500 + i * 37 % 3000);
    kill(writer, SIGKILL);
    waitpid(writer, nullptr, 0);
    ASSERT_NE(letterInFile(), '?');
    leftBehind += filesInFolder() - 1;
  }
  EXPECT_GT(leftBehind, 0U) << "no writer was killed while it wrote, so nothing was tested";
  writeFileAtomically(file_, std::string(kSize, 'c'));
  EXPECT_EQ(letterInFile(), 'c');
  EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(AtomicFile, OneOfManyMakersMakesTheFile) {
  std::vector<pid_t> makers;
  for (char letter = 'a'; letter < 'i'; ++letter) {
    const pid_t child = fork();
    if (child == 0) _exit(createFileAtomically(file_, std::string(kSize, letter)) ? 1 : 0);
    makers.push_back(child);
  }
  int made = 0;
  for (const pid_t maker : makers) {
    int status = 0;
    waitpid(maker, &status, 0);
    made += WIFEXITED(status) ? WEXITSTATUS(status) : 100;
  }
  EXPECT_EQ(made, 1);
  EXPECT_NE(letterInFile(), '?');
  EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(AtomicFile, OnlyOnesOwnLeftoversAreRemoved) {
  writeBytes(folder_.path() / "store.plist.writing-", "no leftover");
  writeBytes(folder_.path() / "store.plist.writing-notes", "a file of the user's");
  writeBytes(folder_.path() / "other.plist.writing-a1B2c3", "of another file");
  writeBytes(folder_.path() / "store.plist.writing-a1B2c3", "a leftover");
  writeFileAtomically(file_, "new");
  EXPECT_EQ(filesInFolder(), 4U);
  EXPECT_FALSE(std::filesystem::exists(folder_.path() / "store.plist.writing-a1B2c3"));
}

TEST_F(AtomicFile, PermissionsAndLinksOfTheOldFileStay) {
  writeFileAtomically(file_, "first");
  struct stat status {};
  ASSERT_EQ(stat(file_.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0644U);
  std::filesystem::permissions(file_, std::filesystem::perms(0600));
  const auto link = folder_.path() / "link.plist";
  std::filesystem::create_symlink("store.plist", link);
  writeFileAtomically(link, "second");
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(bytesOf(file_), "second");
  ASSERT_EQ(stat(file_.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600U);
}

}  // namespace
}  // namespace phone
