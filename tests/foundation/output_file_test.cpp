// Output files of every kind: plain ones are replaced at once, others written to as they are.
#include "phone/foundation/output_file.h"

#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>

#include "phone/foundation/atomic_file.h"
#include "tests/foundation/temporary_folder.h"

namespace phone {
namespace {

namespace fs = std::filesystem;

class OutputFile : public testing::Test {
 protected:
  fs::path local(const std::string& name) const { return folder_.path() / name; }
  std::size_t filesInFolder() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder_.path()), fs::directory_iterator()));
  }
  std::string reasonFor(const std::string& name) const {
    try {
      writeOutputFile(local(name), "new");
    } catch (const std::runtime_error& error) {
      return error.what();
    }
    return "none";
  }

  TemporaryFolder folder_;
};

TEST_F(OutputFile, LinksStayAndLeadToWhatIsReplacedOrMade) {
  fs::create_directory(local("far"));
  writeBytes(local("far/old"), "old");
  fs::create_symlink("far/old", local("to-old"));
  fs::create_symlink("to-old", local("to-link"));
  fs::create_symlink("far/missing", local("to-missing"));
  writeOutputFile(local("to-link"), "new");
  writeOutputFile(local("to-missing"), "made");
  EXPECT_EQ(bytesOf(local("far/old")), "new");
  EXPECT_EQ(bytesOf(local("far/missing")), "made");
  for (const char* link : {"to-old", "to-link", "to-missing"})
    EXPECT_TRUE(fs::is_symlink(local(link))) << link;
}

TEST_F(OutputFile, WhatIsNoPlainFileStaysWhatItIs) {
  ASSERT_EQ(mkfifo(local("pipe").c_str(), 0600), 0);
  fs::create_symlink("/dev/null", local("device"));
  fs::create_directory(local("folder"));
  fs::create_symlink("loop", local("loop"));
  std::string received;
  std::thread reader([&] { received = bytesOf(local("pipe")); });
  const std::string content(300'000, 'x');
  writeOutputFile(local("pipe"), content);
  reader.join();
  EXPECT_EQ(received, content);
  writeOutputFile(local("device"), content);
  EXPECT_TRUE(fs::is_fifo(local("pipe")));
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
  for (const char* refused : {"folder", "loop", "no/such/file"}) {
    EXPECT_NE(reasonFor(refused).find(local(refused).string()), std::string::npos) << reasonFor(refused);
  }
  EXPECT_EQ(filesInFolder(), 4U);
  for (const char* each : {"pipe", "device", "folder"}) {
    EXPECT_THROW(writeFileAtomically(local(each), "settings"), std::runtime_error) << each;
  }
  EXPECT_TRUE(fs::is_fifo(local("pipe")));
}

TEST_F(OutputFile, AReaderThatGoesAwayHadEnough) {
  std::signal(SIGPIPE, SIG_IGN);
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  const FileDescriptor output(ends[1]);
  close(ends[0]);
  EXPECT_NO_THROW(writeOpenFile(output, "pipe", "new"));
  EXPECT_THROW(writeOpenFile(FileDescriptor(open("/dev/full", O_WRONLY)), "full", "new"), std::runtime_error);
}

TEST_F(OutputFile, ANewFileHasThePermissionsThatItsUserGives) {
  const mode_t before = umask(077);
  writeOutputFile(local("private"), "new");
  umask(before);
  struct stat status {};
  ASSERT_EQ(stat(local("private").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600U);
}

TEST_F(OutputFile, AnOpenFileWithoutANameIsWrittenTo) {
  const FileDescriptor opened(open(local("gone").c_str(), O_RDWR | O_CREAT, 0600));
  fs::remove(local("gone"));
  writeOutputFile("/proc/self/fd/" + std::to_string(opened.number()), "new");
  char content[8] = {};
  EXPECT_EQ(pread(opened.number(), content, sizeof content, 0), 3);
  EXPECT_EQ(filesInFolder(), 0U);
}

TEST_F(OutputFile, NamesOfTheGreatestLengthAreFine) {
  const std::string longest(255, 'n');
  writeOutputFile(local(longest), "new");
  EXPECT_EQ(bytesOf(local(longest)), "new");
  EXPECT_NE(reasonFor(longest + "n"), "none");
  EXPECT_EQ(filesInFolder(), 1U);
}

}  // namespace
}  // namespace phone
