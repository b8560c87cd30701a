// The release itself: blocks, passes, pumps, errors, nesting, and closing in the middle.
#include <gtest/gtest.h>

#include "tests/support/form_fixture.h"
#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

constexpr const char* kWarning =
    "Warning - System Resources may be low.  Please check your harddisk space and swapfile size.";

using Sizes = std::vector<std::uint32_t>;

class Release : public testing::Test {
 public:
  void SetUp() override {
    rig.SetHasRunBefore();
    rig.Start();
  }

  void Press(const char* amount, const char* passes) {
    ASSERT_TRUE(rig.program->QuondixScreen().List1.Choose(amount));
    rig.program->QuondixScreen().Text1.SetText(passes);
    rig.program->QuondixScreen().Command1.Press();
  }

  double Amount() { return amount_mb; }
  memory::ReleaseOutcome FreeUp(double mb, double passes) {
    amount_mb = mb;
    return rig.program->MemoryRelease().FreeUpMemory(
        {.amount_mb = base::Callback<double()>::To<&Release::Amount>(*this), .passes = passes});
  }

  ui::Button& Button() { return rig.program->QuondixScreen().Command1; }

  ProgramRig rig;
  double amount_mb = 0;
};

TEST_F(Release, OneBlockUpTo250Megabytes) {
  (void)FreeUp(250, 1);
  EXPECT_EQ(rig.machine.AllAllocations(), (Sizes{260000001}));
}

TEST_F(Release, SecondBlockTakesTheRestAbove250Megabytes) {
  (void)FreeUp(251, 1);
  EXPECT_EQ(rig.machine.AllAllocations(), (Sizes{260000001, 1040001}));
}

TEST_F(Release, LargestListItemMakesTwoBlocks) {
  Press("512 MB", "1");
  EXPECT_EQ(rig.machine.AllAllocations(), (Sizes{260000001, 272480001}));
}

TEST_F(Release, AmountsAreMegabytesOf1040000Bytes) {
  Press("64 MB", "1");
  EXPECT_EQ(rig.machine.AllAllocations(), (Sizes{66560001}));
}

TEST_F(Release, FractionsOfAByteAreRoundedHalfToEven) {
  (void)FreeUp(0.5 / 1040000, 1);
  (void)FreeUp(1.5 / 1040000, 1);
  EXPECT_EQ(rig.machine.AllAllocations(), (Sizes{1, 3}));
}

TEST_F(Release, EveryPageOfEachBlockIsWrittenBeforeThePumps) {
  const int pumps_before = rig.machine.PumpCount();
  rig.machine.OnPump([&](int number) {
    if (number != pumps_before + 1) return;
    EXPECT_EQ(rig.machine.OutstandingBlocks(), (Sizes{260000001, 272480001}));
    EXPECT_EQ(rig.machine.TouchedPages(), (Sizes{63477, 66524}));
  });
  Press("512 MB", "1");
  EXPECT_EQ(rig.machine.PumpCount() - pumps_before, 10000);
  EXPECT_TRUE(rig.machine.OutstandingBlocks().empty());
}

TEST_F(Release, PumpsFiveThousandTimesWithTheBlocksAndFiveThousandTimesWithout) {
  const int pumps_before = rig.machine.PumpCount();
  rig.machine.OnPump([&](int number) {
    EXPECT_EQ(rig.machine.OutstandingBlocks().size(), number - pumps_before <= 5000 ? 2U : 0U) << number;
  });
  Press("512 MB", "1");
  EXPECT_EQ(rig.machine.PumpCount() - pumps_before, 10000);
}

struct Passes {
  const char* text;
  std::size_t count;
};

class PassCount : public Release, public testing::WithParamInterface<Passes> {};

TEST_P(PassCount, FollowsTheTextWithOneBarAndTheButtonDisabledAndEnabledAgain) {
  rig.graph.ClearCounts();
  RecordingPeer peer;
  Button().AttachPeer(&peer);
  Press("12 MB", GetParam().text);
  EXPECT_EQ(rig.machine.AllAllocations().size(), GetParam().count);
  EXPECT_EQ(rig.graph.CopyCount(), 1) << "one bar per release";
  EXPECT_EQ(peer.changes, (std::vector<ui::Change>{ui::Change::kEnabled, ui::Change::kEnabled}));
  EXPECT_TRUE(Button().Enabled());
}

INSTANTIATE_TEST_SUITE_P(Texts, PassCount,
                         testing::Values(Passes{"1", 1}, Passes{"3", 3}, Passes{"2.5", 2}, Passes{"0", 0},
                                         Passes{"", 0}, Passes{"abc", 0}, Passes{"-1", 0}, Passes{"0.9", 0}));

TEST_F(Release, PassCountIsReadOnceAndTheAmountAtEveryPass) {
  bool changed = false;
  rig.machine.OnPump([&](int) {
    if (changed) return;
    changed = true;
    rig.program->QuondixScreen().Text1.SetText("9");
    EXPECT_TRUE(rig.program->QuondixScreen().List1.Choose("2 MB"));
  });
  Press("1 MB", "2");
  EXPECT_EQ(rig.machine.AllAllocations(), (Sizes{1040001, 2080001}));
}

TEST_F(Release, NoSelectionAllocatesASingleByte) {
  ASSERT_TRUE(rig.program->QuondixScreen().List1.SetSelectedIndex(ui::ListControl::kNoSelection).Ok());
  rig.program->QuondixScreen().Command1.Press();
  EXPECT_EQ(rig.machine.AllAllocations(), (Sizes{1}));
}

TEST_F(Release, OutOfMemoryOnTheSecondPassEndsTheRunWithOneWarning) {
  rig.machine.OnPump([&](int) { rig.machine.LimitAllocatableBytes(1000); });
  Press("12 MB", "5");
  EXPECT_EQ(rig.machine.AllAllocations().size(), 1U);
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text, kWarning);
  EXPECT_EQ(rig.machine.Boxes()[0].title, "Q-DIX");
  EXPECT_EQ(rig.machine.Boxes()[0].flags, os::kMbOk);
  EXPECT_TRUE(Button().Enabled());
}

TEST_F(Release, ManualReleaseWarnsEvenWithTheWarningSwitchedOff) {
  rig.program->StartupScreen().Check4.SetTicked(true);
  rig.machine.LimitAllocatableBytes(1000);
  Press("12 MB", "1");
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text, kWarning);
}

TEST_F(Release, RefusedSecondBlockFreesTheFirstAfterTheBox) {
  rig.machine.LimitAllocatableBytes(260000001 + kMegabyte);
  bool box_seen = false;
  rig.machine.WhileBoxIsOpen([&] {
    box_seen = true;
    EXPECT_EQ(rig.machine.OutstandingBlocks(), (Sizes{260000001}));
  });
  Press("512 MB", "1");
  EXPECT_TRUE(box_seen);
  EXPECT_TRUE(rig.machine.OutstandingBlocks().empty());
}

TEST_F(Release, NegativeAmountShowsTheErrorsDescription) {
  EXPECT_EQ(FreeUp(-1, 3), memory::ReleaseOutcome::kFailed);
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text, "Subscript out of range");
  EXPECT_TRUE(rig.machine.AllAllocations().empty());
}

TEST_F(Release, AmountBeyond32BitsShowsOverflowAndFreesTheFirstBlock) {
  EXPECT_EQ(FreeUp(250 + 2147.483647 / 1.04 + 1, 1), memory::ReleaseOutcome::kFailed);
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text, "Overflow");
  EXPECT_TRUE(rig.machine.OutstandingBlocks().empty());
}

TEST_F(Release, LargestIndexOf32BitsStillReachesTheSystem) {
  EXPECT_EQ(FreeUp(250 + 2147483647 / 1040000.0, 1), memory::ReleaseOutcome::kFinished);
  EXPECT_EQ(rig.machine.AllAllocations(), (Sizes{260000001, 2147483648U}));
}

TEST_F(Release, SilencedWarningShowsNothing) {
  rig.machine.LimitAllocatableBytes(1000);
  amount_mb = 12;
  struct Silence {
    bool Yes() { return true; }
  } silence;
  EXPECT_EQ(rig.program->MemoryRelease().FreeUpMemory(
                {.amount_mb = base::Callback<double()>::To<&Release::Amount>(*this),
                 .passes = 2,
                 .warning_is_silenced = base::Callback<bool()>::To<&Silence::Yes>(silence)}),
            memory::ReleaseOutcome::kFailed);
  EXPECT_TRUE(rig.machine.Boxes().empty());
}

TEST_F(Release, CheckBetweenPassesEndsTheRelease) {
  amount_mb = 12;
  struct Question {
    std::vector<double> asked;
    bool IsFree(double amount) {
      asked.push_back(amount);
      return asked.size() == 3;
    }
  } question;
  EXPECT_EQ(rig.program->MemoryRelease().FreeUpMemory(
                {.amount_mb = base::Callback<double()>::To<&Release::Amount>(*this),
                 .passes = 5,
                 .enough_is_free = base::Callback<bool(double)>::To<&Question::IsFree>(question)}),
            memory::ReleaseOutcome::kFinished);
  EXPECT_EQ(question.asked, (std::vector<double>{12, 12, 12}));
  EXPECT_EQ(rig.machine.AllAllocations().size(), 2U);
}

TEST_F(Release, ReleasesNestAndEachDisablesAndEnablesTheButton) {
  bool nested = false;
  std::vector<bool> enabled_after_nested;
  rig.machine.OnPump([&](int) {
    if (nested) return;
    nested = true;
    // The tray menu calls the handler even while the button is disabled.
    base::Ignore(Button().OnClick());
    enabled_after_nested.push_back(Button().Enabled());
  });
  Press("12 MB", "1");
  EXPECT_EQ(rig.machine.AllAllocations(), (Sizes{12480001, 12480001}));
  EXPECT_EQ(enabled_after_nested, (std::vector<bool>{true}));
  EXPECT_TRUE(Button().Enabled());
  EXPECT_TRUE(rig.machine.OutstandingBlocks().empty());
}

TEST_F(Release, DisplayIsRefreshedDuringARelease) {
  rig.machine.SetMemory(64 * kMegabyte, 24012345, 1000, 1000);
  int pumps = 0;
  rig.machine.OnPump([&](int) {
    if (++pumps == 100) rig.AdvanceMs(750);
  });
  Press("12 MB", "1");
  EXPECT_EQ(rig.program->Form().Caption(), "23.45 MB   Q-DIX");
}

class CloseInRelease : public Release, public testing::WithParamInterface<int> {};

TEST_P(CloseInRelease, UnloadsOnceFreesTheBlocksAndDoesNothingElse) {
  const int pumps_before = rig.machine.PumpCount();
  std::size_t calls_at_close = 0;
  rig.machine.OnPump([&](int number) {
    if (number - pumps_before != GetParam()) return;
    rig.program->Form().Unload();
    calls_at_close = rig.machine.Calls().size();
  });
  Press("512 MB", "1E9");
  EXPECT_TRUE(rig.program->Form().Unloaded());
  EXPECT_EQ(rig.machine.PumpCount() - pumps_before, GetParam()) << "no pump after the close";
  EXPECT_TRUE(rig.machine.OutstandingBlocks().empty());
  EXPECT_EQ(rig.machine.AllAllocations().size(), GetParam() > 10000 ? 4U : 2U);
  for (std::size_t i = calls_at_close; i < rig.machine.Calls().size(); ++i) {
    EXPECT_TRUE(rig.machine.Calls()[i].starts_with("VirtualFree")) << rig.machine.Calls()[i];
  }
  EXPECT_FALSE(Button().Enabled()) << "the unwinding release sets nothing";
  EXPECT_EQ(rig.Stored("Settings", "LastTab"), "0");
}

INSTANTIATE_TEST_SUITE_P(Moments, CloseInRelease, testing::Values(1, 2500, 5000, 5001, 10000, 15000));

TEST_F(Release, CloseInANestedReleaseUnwindsBoth) {
  int depth = 0;
  rig.machine.OnPump([&](int) {
    if (depth == 0) {
      depth = 1;
      base::Ignore(Button().OnClick());
    } else if (depth == 1) {
      depth = 2;
      rig.program->Form().Unload();
    }
  });
  Press("12 MB", "3");
  EXPECT_EQ(rig.machine.AllAllocations().size(), 2U);
  EXPECT_TRUE(rig.machine.OutstandingBlocks().empty());
}

TEST_F(Release, CloseWhileTheWarningIsOpenShowsNothingMore) {
  rig.machine.LimitAllocatableBytes(1000);
  rig.machine.WhileBoxIsOpen([&] { rig.program->Form().Unload(); });
  Press("12 MB", "2");
  EXPECT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_TRUE(rig.program->Form().Unloaded());
  EXPECT_FALSE(Button().Enabled());
}

TEST_F(Release, NoPassBeginsAfterTheClose) {
  rig.program->Form().Unload();
  EXPECT_EQ(FreeUp(12, 1), memory::ReleaseOutcome::kUnloaded);
  EXPECT_EQ(FreeUp(12, 0), memory::ReleaseOutcome::kUnloaded);
  EXPECT_TRUE(rig.machine.AllAllocations().empty());
}

TEST_F(Release, DisabledButtonStartsNothing) {
  Button().SetEnabled(false);
  Button().Press();
  EXPECT_TRUE(rig.machine.AllAllocations().empty());
}

}  // namespace
}  // namespace qdix::tests
