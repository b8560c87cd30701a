// How the shipped exe shows itself when it starts, and its pause.
#include "tests/e2e/driver/fake_memory.h"
#include "tests/e2e/driver/notification_area.h"
#include "tests/e2e/session.h"

namespace qdix::e2e {
namespace {

/// Available bytes that the program shows as 100 MB and as 50 MB.
constexpr std::uint32_t kBytesOf100Mb = 102400000;
constexpr std::uint32_t kBytesOf50Mb = 51200000;

class StartModeSession : public Session {
 protected:
  void SetUp() override {
    Session::SetUp();
    MarkMachineAsKnown();
  }

  /// The first reading comes from the message loop, after the start, when the window is or is not shown.
  static void StartInMode(ShippedProgram& copy, const std::string& mode) {
    SetRegistryText(kStartup, "StartDisplay", mode);
    StartAsStored(copy);
  }
  static void StartAsStored(ShippedProgram& copy) {
    ASSERT_TRUE(copy.Start());
    ASSERT_TRUE(copy.WaitForFirstReading());
  }
  [[nodiscard]] static bool IsShown(const ShippedProgram& copy) {
    return IsWindowVisible(copy.MainWindow()) != 0;
  }
  [[nodiscard]] static bool IsMinimised(const ShippedProgram& copy) {
    return IsIconic(copy.MainWindow()) != 0;
  }
  void ExpectCaption(const std::string& text) const {
    EXPECT_TRUE(program.Await([&] { return program.Caption() == text; })) << program.Caption();
  }
  void ExpectCaptionStays(const std::string& text) const {
    EXPECT_FALSE(program.Await([&] { return program.Caption() != text; }, kFourRefreshesMs))
        << program.Caption();
  }

  static constexpr int kFourRefreshesMs = 3000;
};

TEST_F(StartModeSession, OneShowsTheWindow) {
  StartInMode(program, "1");
  EXPECT_TRUE(IsShown(program));
  EXPECT_FALSE(IsMinimised(program));
  EXPECT_TRUE(program.HasIcon());
  program.OpenTab(3);
  EXPECT_TRUE(program.IsChecked("Option1"));
  CloseProgram();
}

TEST_F(StartModeSession, TwoMinimisesTheWindowWithTheMemoryInItsCaption) {
  StartInMode(program, "2");
  EXPECT_TRUE(IsShown(program));
  EXPECT_TRUE(IsMinimised(program));
  EXPECT_TRUE(program.HasIcon());
  // A taskbar writes this on the button of the window. Wine's shows no button for an owned window, see
  // MainWindowAsksForAButtonInTheTaskbar.
  FakeMemory memory(program.Process());
  ASSERT_TRUE(memory.SetAvailable(kBytesOf100Mb));
  ExpectCaption("100 MB   Q-DIX");
  EXPECT_TRUE(IsMinimised(program));
  ShowWindowAsync(program.MainWindow(), SW_RESTORE);
  ASSERT_TRUE(program.Await([this] { return !IsMinimised(program); }));
  program.OpenTab(3);
  EXPECT_TRUE(program.IsChecked("Option2"));
  CloseProgram();
}

TEST_F(StartModeSession, ThreeShowsTheIconOnly) {
  StartInMode(program, "3");
  EXPECT_FALSE(IsShown(program));
  EXPECT_TRUE(program.HasIcon());
  EXPECT_EQ(TaskbarButtonCount(), 0);
  ASSERT_TRUE(PressIcon(Press::kLeftTwice));
  ASSERT_TRUE(program.Await([this] { return IsShown(program); }));
  program.OpenTab(3);
  EXPECT_TRUE(program.IsChecked("Option3"));
  CloseProgram();
}

TEST_F(StartModeSession, MinimisedShortcutMinimisesTheWindowThatWouldBeShown) {
  SetRegistryText(kStartup, "StartDisplay", "1");
  ASSERT_TRUE(program.StartShown(SW_SHOWMINNOACTIVE));
  ASSERT_TRUE(program.WaitForFirstReading());
  EXPECT_TRUE(IsShown(program));
  EXPECT_TRUE(IsMinimised(program));
  ShowWindowAsync(program.MainWindow(), SW_RESTORE);
  ASSERT_TRUE(program.Await([this] { return !IsMinimised(program); }));
  CloseProgram();
}

TEST_F(StartModeSession, MinimisedShortcutAffectsNeitherAHiddenStartNorLaterShows) {
  SetRegistryText(kStartup, "StartDisplay", "3");
  ASSERT_TRUE(program.StartShown(SW_SHOWMINNOACTIVE));
  ASSERT_TRUE(program.WaitForFirstReading());
  EXPECT_FALSE(IsShown(program));
  ASSERT_TRUE(PressIcon(Press::kLeftTwice));
  ASSERT_TRUE(program.Await([this] { return IsShown(program); }));
  EXPECT_FALSE(IsMinimised(program));
  CloseProgram();
}

TEST_F(StartModeSession, MinimisedShortcutMinimisesACompanion) {
  for (const ProgramFacts& facts : {HelpViewer(), ConfigLauncher(), Undo()}) {
    ShippedProgram companion(facts);
    ASSERT_TRUE(companion.StartShown(SW_SHOWMINNOACTIVE));
    ASSERT_TRUE(companion.WaitForWindow()) << facts.file_name;
    EXPECT_TRUE(companion.Await([&] { return IsMinimised(companion); })) << facts.file_name;
    companion.Close();
    EXPECT_EQ(companion.WaitForExit(), 0) << facts.file_name;
  }
}

TEST_F(StartModeSession, UnknownModeShowsTheWindowAndChoosesNoOption) {
  StartInMode(program, "7");
  EXPECT_TRUE(IsShown(program));
  EXPECT_FALSE(IsMinimised(program));
  program.OpenTab(3);
  for (const char* const option : {"Option1", "Option2", "Option3"}) EXPECT_FALSE(program.IsChecked(option));
  CloseProgram();
  EXPECT_EQ(RegistryText(kStartup, "StartDisplay"), "7");
}

TEST_F(StartModeSession, SecondCopyFindsTheWindowThatStartedHiddenAndEnds) {
  StartInMode(program, "3");
  EXPECT_EQ(GetWindow(program.ApplicationWindow(), GW_HWNDPREV), program.MainWindow());
  const ProgramRegistry before;
  ShippedProgram second;
  ASSERT_TRUE(second.Start());
  EXPECT_EQ(second.WaitForExit(), 0);
  EXPECT_TRUE(program.HasIcon());
  EXPECT_TRUE(ProgramRegistry() == before);
  CloseProgram();
}

TEST_F(StartModeSession, ChoosingHiddenChangesNothingBeforeTheNextStart) {
  StartInMode(program, "1");
  program.OpenTab(3);
  program.Press("Option3");
  ASSERT_TRUE(program.Await([] { return RegistryText(kStartup, "StartDisplay") == "3"; }));
  // A caption refreshed after the choice shows that the choice has been handled.
  FakeMemory memory(program.Process());
  ASSERT_TRUE(memory.SetAvailable(kBytesOf100Mb));
  ExpectCaption("100 MB   Q-DIX");
  EXPECT_TRUE(IsShown(program));
  EXPECT_FALSE(IsMinimised(program));
  CloseProgram();
  ShippedProgram next;
  StartAsStored(next);
  EXPECT_FALSE(IsShown(next));
  CloseCopy(next);
}

TEST_F(StartModeSession, PauseStopsTheFiguresAndResumeRestartsThem) {
  StartProgram();
  FakeMemory memory(program.Process());
  ASSERT_TRUE(memory.SetAvailable(kBytesOf100Mb));
  ExpectCaption("100 MB   Q-DIX");
  program.Press("Command3");
  ASSERT_TRUE(program.Await([this] { return program.Text("Command3") == "Re&sume Activity"; }))
      << program.Text("Command3");
  ASSERT_TRUE(memory.SetAvailable(kBytesOf50Mb));
  ExpectCaptionStays("100 MB   Q-DIX");
  program.Press("Command3");
  ExpectCaption("50 MB   Q-DIX");
  EXPECT_EQ(program.Text("Command3"), "Pau&se All Activity");
  CloseProgram();
}

TEST_F(StartModeSession, PauseDisablesBothActivitiesAndResumeEnablesThem) {
  StartProgram();
  program.OpenTab(1);
  program.OpenTab(2);
  program.OpenTab(0);
  const auto both_enabled = [this](bool enabled) {
    return program.Await([this, enabled] {
      return program.IsEnabled("Check1") == enabled && program.IsEnabled("Check3") == enabled;
    });
  };
  EXPECT_TRUE(both_enabled(true));
  program.Press("Command3");
  EXPECT_TRUE(both_enabled(false));
  program.Press("Command3");
  EXPECT_TRUE(both_enabled(true));
  CloseProgram();
}

}  // namespace
}  // namespace qdix::e2e
