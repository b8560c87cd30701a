// Releases of the shipped exe, observed from outside the process.
#include <algorithm>

#include "tests/e2e/driver/hand.h"
#include "tests/e2e/driver/process_memory.h"
#include "tests/e2e/machine.h"
#include "tests/e2e/session.h"

namespace qdix::e2e {
namespace {

using Blocks = std::vector<std::uint64_t>;

constexpr int kReleaseDeadlineMs = 600000;

const std::uint64_t kLargestFirstBlock = WholePages(260000001);

class ReleaseSession : public Session {
 protected:
  void SetUp() override {
    Session::SetUp();
    MarkMachineAsKnown();
  }

  /// With this many passes the checks from outside see the blocks, however late they are on a busy machine.
  static void SetPasses(const char* passes) { SetRegistryText(kSettings, "TryTimes", passes); }

  void PressFreeUp(const std::string& amount) {
    ASSERT_TRUE(program.Choose("List1", amount));
    ASSERT_TRUE(Click(program.Control("Command1")));
    ASSERT_TRUE(program.Await([&] { return !program.IsEnabled("Command1"); }));
  }

  /// Releases an amount and returns the largest set of blocks seen at once while the button was disabled.
  Blocks BlocksOfARelease(const std::string& amount) {
    Blocks most;
    DWORD pause_begin_ms = GetTickCount();
    DWORD pause_ms = 0;
    PressFreeUp(amount);
    EXPECT_TRUE(program.Await(
        [&] {
          // A check blocks the program, so half of the time is left to the program.
          if (GetTickCount() - pause_begin_ms >= pause_ms) {
            const DWORD begin_ms = GetTickCount();
            const Blocks blocks = program.CommittedBlocks(kBlockBytes);
            if (blocks.size() > most.size()) most = blocks;
            pause_begin_ms = GetTickCount();
            pause_ms = pause_begin_ms - begin_ms;
          }
          return program.IsEnabled("Command1");
        },
        kReleaseDeadlineMs))
        << "the button is enabled again";
    return most;
  }
};

TEST_F(ReleaseSession, SixtyFourMegabytesAreOneBlock) {
  SetPasses("10");
  StartProgram();
  EXPECT_EQ(program.CommittedBlocks(kBlockBytes), Blocks{});
  EXPECT_EQ(BlocksOfARelease("64 MB"), Blocks{WholePages(66560001)});
  EXPECT_EQ(program.CommittedBlocks(kBlockBytes), Blocks{}) << "everything is freed";
  EXPECT_EQ(RegistryText(kSettings, "FreeUpRAM"), "64");
  CloseProgram();
}

TEST_F(ReleaseSession, FiveHundredAndTwelveMegabytesAreTwoBlocks) {
  SetPasses("6");
  StartProgram();
  const std::uint64_t before = program.CommittedBytes();
  EXPECT_EQ(BlocksOfARelease("512 MB"), (Blocks{kLargestFirstBlock, WholePages(272480001)}));
  EXPECT_EQ(program.CommittedBlocks(kBlockBytes), Blocks{});
  EXPECT_LT(program.CommittedBytes(), before + 1024 * 1024);
  CloseProgram();
}

TEST_F(ReleaseSession, WindowAnswersWhileMemoryIsHeld) {
  SetPasses("1000");
  StartProgram();
  PressFreeUp("8 MB");
  program.OpenTab(7);
  EXPECT_TRUE(program.IsVisible("lblVersion"));
  program.OpenTab(0);
  EXPECT_FALSE(program.IsEnabled("Command1")) << "the release is still running";
  CloseProgram();
}

TEST_F(ReleaseSession, TextThatIsNoNumberMeansNoPasses) {
  SetPasses("abc");
  StartProgram();
  ASSERT_TRUE(program.Choose("List1", "512 MB"));
  Ask(program.Control("Command1"), BM_CLICK);
  EXPECT_TRUE(program.IsEnabled("Command1")) << "the click returned after the release";
  CloseProgram();
}

TEST_F(ReleaseSession, WarningWhenTheSystemRefusesTheFirstBlock) {
  StartProgram();
  ASSERT_TRUE(RestrictAddressSpace(program.Process(), 100000000));
  PressFreeUp("512 MB");
  ASSERT_TRUE(program.Await([&] { return !program.MessageBoxes().empty(); }));
  const MessageBox warning = program.MessageBoxes().front();
  EXPECT_EQ(warning.title, "Q-DIX");
  EXPECT_EQ(warning.text,
            "Warning - System Resources may be low.  Please check your harddisk space and swapfile size.");
  EXPECT_EQ(program.CommittedBlocks(kBlockBytes), Blocks{});
  EXPECT_FALSE(program.IsEnabled("Command1"));
  EXPECT_TRUE(PressButton(warning, IDOK));
  EXPECT_TRUE(program.Await([&] { return program.IsEnabled("Command1"); }));
  CloseProgram();
}

TEST_F(ReleaseSession, FirstBlockIsHeldUntilTheWarningAboutTheSecondIsAnswered) {
  SetPasses("3");
  StartProgram();
  ASSERT_TRUE(RestrictAddressSpace(program.Process(), 265000000));
  PressFreeUp("512 MB");
  ASSERT_TRUE(program.Await([&] { return !program.MessageBoxes().empty(); }));
  EXPECT_EQ(program.CommittedBlocks(kBlockBytes), Blocks{kLargestFirstBlock});
  EXPECT_EQ(program.AnswerBoxes().size(), 1U);
  EXPECT_TRUE(program.Await([&] { return program.IsEnabled("Command1"); }));
  EXPECT_EQ(program.CommittedBlocks(kBlockBytes), Blocks{});
  EXPECT_TRUE(program.MessageBoxes().empty()) << "there is no further pass";
  CloseProgram();
}

}  // namespace
}  // namespace qdix::e2e
