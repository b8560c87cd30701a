// Releases of the shipped exe, observed from outside the process.
#include <algorithm>

#include "tests/e2e/session.h"

namespace qdix::e2e {
namespace {

constexpr std::uint64_t kPageBytes = 4096;
/// Larger than anything that the program holds besides the blocks of a release.
constexpr std::uint64_t kBlockBytes = 16 * 1024 * 1024;

std::uint64_t WholePages(std::uint64_t bytes) { return (bytes + kPageBytes - 1) / kPageBytes * kPageBytes; }

class ReleaseSession : public Session {
 protected:
  /// Releases an amount and returns the blocks that were seen while the button was disabled.
  std::vector<std::uint64_t> BlocksOfARelease(const std::string& amount) {
    EXPECT_TRUE(program.Choose("List1", amount));
    program.PressWithPointer("Command1");
    std::vector<std::uint64_t> most;
    EXPECT_TRUE(Eventually([&] { return !program.IsEnabled("Command1"); }))
        << "the button is disabled meanwhile";
    EXPECT_TRUE(Eventually(
        [&] {
          const auto blocks = program.CommittedBlocks(kBlockBytes);
          if (blocks.size() > most.size()) most = blocks;
          return program.IsEnabled("Command1");
        },
        120000))
        << "the button is enabled again";
    return most;
  }
};

TEST_F(ReleaseSession, SixtyFourMegabytesAreOneBlockOf66560001BytesInWholePages) {
  StartProgram();
  EXPECT_TRUE(program.CommittedBlocks(kBlockBytes).empty());
  EXPECT_EQ(BlocksOfARelease("64 MB"), (std::vector<std::uint64_t>{WholePages(66560001)}));
  EXPECT_TRUE(program.CommittedBlocks(kBlockBytes).empty()) << "everything is given back";
  EXPECT_EQ(RegistryText(HKEY_CURRENT_USER, kSettings, "FreeUpRAM"), "64");
  CloseProgram();
}

TEST_F(ReleaseSession, FiveHundredAndTwelveMegabytesAreTwoBlocks) {
  StartProgram();
  auto blocks = BlocksOfARelease("512 MB");
  std::sort(blocks.begin(), blocks.end());
  EXPECT_EQ(blocks, (std::vector<std::uint64_t>{WholePages(260000001), WholePages(272480001)}));
  EXPECT_TRUE(program.CommittedBlocks(kBlockBytes).empty());
  CloseProgram();
}

TEST_F(ReleaseSession, CloseInTheMiddleEndsTheProcessAndKeepsTheSettings) {
  StartProgram();
  SetRegistryText(HKEY_CURRENT_USER, kSettings, "LastTab", "before");
  EXPECT_TRUE(program.Choose("List1", "512 MB"));
  program.PressWithPointer("Command1");
  ASSERT_TRUE(Eventually([&] { return program.CommittedBlocks(kBlockBytes).size() == 2; }));
  CloseProgram();
  EXPECT_EQ(RegistryText(HKEY_CURRENT_USER, kSettings, "LastTab"), "0");
}

TEST_F(ReleaseSession, ReleasesLeaveNoMemoryBehind) {
  StartProgram();
  BlocksOfARelease("64 MB");
  const std::uint64_t after_first = program.CommittedBytes();
  for (int i = 0; i < 3; ++i) BlocksOfARelease("64 MB");
  EXPECT_LE(program.CommittedBytes(), after_first + 64 * 1024);
  CloseProgram();
}

}  // namespace
}  // namespace qdix::e2e
