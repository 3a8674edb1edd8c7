// A store that cannot be written: the switch keeps what its user chose, the old file stays whole, and the
// screen goes on.
#include <cstring>
#include <fstream>
#include <gtest/gtest.h>
#include <sched.h>
#include <stdexcept>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

#include "phone/calendarui/calendar_process.h"
#include "tests/support/built.h"
#include "tests/two_processes/child_process.h"
#include "tests/two_processes/shared_phone.h"

namespace phone::test {
namespace {

constexpr std::size_t kOtherEntries = 200;

bool isOn(const CalendarScreen& screen) {
  for (const auto& group : screen.groups) {
    for (const Row& row : group) {
      if (row.text == kRow) return row.switchOn.value();
    }
  }
  throw std::runtime_error("The row is not there.");
}

/// Flips the switch after `obstruct` made the store unwritable for this process.
template <typename Obstruct>
std::string flipInVain(const SharedPhone& shared, const std::string& event, Obstruct obstruct) {
  auto calendar = CalendarProcess::boot(shared.options(), pluginLibrary());
  EKEventViewController* const view = calendar.openEvent(event);
  obstruct();
  const std::string before = bytesOf(shared.store());
  if (before.size() < 10'000) throw std::runtime_error("The store is too small to stand in the way.");
  calendar.setSwitch(view, kRow, false);
  if (bytesOf(shared.store()) != before) throw std::runtime_error("The old store did not stay whole.");
  if (isOn(calendar.screenOf(view))) throw std::runtime_error("The switch forgot what its user chose.");
  // And the editor, which writes when it closes.
  EKEventEditor* const editor = calendar.editFrontEvent();
  calendar.setSwitch(editor, kRow, false);
  calendar.close(editor, EditAction::kCancelled);
  if (bytesOf(shared.store()) != before) throw std::runtime_error("The old store did not stay whole.");
  return "kept";
}

class UnwritableStore : public testing::Test {
 protected:
  UnwritableStore() : event_(shared_.addEvent("Dentist")) { shared_.writeStore(otherKeys(kOtherEntries)); }

  void expectKept(const ChildResult& result) const {
    EXPECT_EQ(result.output, "kept");
    EXPECT_TRUE(result.exitedClean);
    EXPECT_EQ(shared_.readStore().size(), kOtherEntries);
  }

  SharedPhone shared_;
  std::string event_;
};

TEST_F(UnwritableStore, inAFolderWithoutWritePermission) {
  const auto obstruct = [&] {
    // The administrator may write everywhere, so this process becomes somebody else.
    constexpr uid_t kNobody = 65'534;
    std::filesystem::permissions(shared_.options().root, std::filesystem::perms(0755));
    std::filesystem::permissions(shared_.preferences(), std::filesystem::perms(0555));
    if (geteuid() == 0 &&
        (setresgid(kNobody, kNobody, kNobody) != 0 || setresuid(kNobody, kNobody, kNobody) != 0)) {
      throw std::runtime_error("The administrator's rights cannot be given up.");
    }
    if (access(shared_.preferences().c_str(), W_OK) == 0) throw std::runtime_error("The folder is writable.");
  };
  expectKept(runInChild([&] { return flipInVain(shared_, event_, obstruct); }));
  std::filesystem::permissions(shared_.preferences(), std::filesystem::perms(0755));
  EXPECT_EQ(shared_.filesBesideStore().size(), 1U);
}

TEST_F(UnwritableStore, beyondTheProcessesFileSizeLimit) {
  const auto obstruct = [] {
    const rlimit limit{4'096, 4'096};
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0) throw std::runtime_error("No limit can be set.");
  };
  expectKept(runInChild([&] { return flipInVain(shared_, event_, obstruct); }));
  EXPECT_EQ(shared_.filesBesideStore().size(), 1U);
}

/// Puts a small disk of its own under the store's folder, for this process alone. False where that is not
/// allowed.
bool mountSmallDisk(const std::filesystem::path& folder) {
  return unshare(CLONE_NEWNS) == 0 && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
         mount("none", folder.c_str(), "tmpfs", 0, "size=64k") == 0;
}

void fillDisk(const std::filesystem::path& folder) {
  std::ofstream filler(folder / "filler", std::ios::binary);
  const std::string block(1'024, 'x');
  while (filler.write(block.data(), static_cast<std::streamsize>(block.size())).flush()) {
  }
}

TEST_F(UnwritableStore, onAFullDisk) {
  const ChildResult result = runInChild([&]() -> std::string {
    if (!mountSmallDisk(shared_.preferences())) return "not allowed";
    shared_.writeStore(otherKeys(kOtherEntries));
    std::string kept = flipInVain(shared_, event_, [&] { fillDisk(shared_.preferences()); });
    if (shared_.filesBesideStore().size() != 2) throw std::runtime_error("A temporary file was left.");
    // With room again the same flip works, so it was the disk that stood in its way.
    std::filesystem::remove(shared_.preferences() / "filler");
    shared_.writeStore(otherKeys(1));
    return kept;
  });
  if (result.output == "not allowed")
    GTEST_SKIP() << "This machine does not let the test mount a small disk.";
  expectKept(result);
}

}  // namespace
}  // namespace phone::test
