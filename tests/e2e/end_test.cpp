// Every way in which the shipped exe ends: always by itself, with exit code 0, its settings stored, its icon
// removed and no questions.
#include "tests/e2e/driver/process_memory.h"
#include "tests/e2e/session.h"

namespace qdix::e2e {
namespace {

class EndSession : public Session {
 protected:
  void SetUp() override {
    Session::SetUp();
    SetRegistryText(kSettings, "LastTab", "0");
  }

  /// Begins a release; no test waits for its end.
  void BeginLongRelease() {
    ASSERT_TRUE(program.Choose("List1", "64 MB"));
    program.Press("Command1");
    ASSERT_TRUE(program.Await([&] { return !program.CommittedBlocks(kBlockBytes).empty(); }));
  }
  /// Opens the tip of the first run.
  void OpenBox() {
    program.BeginToOpenTab(1);
    ASSERT_TRUE(program.Await([&] { return !program.MessageBoxes().empty(); }));
  }
  void EndWindowsSession() const {
    EXPECT_NE(Ask(program.MainWindow(), WM_QUERYENDSESSION), 0);
    EXPECT_TRUE(program.IsRunning()) << "another program may still refuse";
    Ask(program.MainWindow(), WM_ENDSESSION, TRUE);
  }
};

TEST_F(EndSession, CloseInTheMiddleOfARelease) {
  SetRegistryText(kSettings, "TryTimes", "1000000000");
  StartProgram();
  BeginLongRelease();
  program.OpenTab(7);
  CloseProgram();
  EXPECT_EQ(RegistryText(kSettings, "LastTab"), "7");
}

TEST_F(EndSession, CloseWhileABoxIsOpen) {
  StartProgram();
  OpenBox();
  CloseProgram();
  EXPECT_EQ(RegistryText(kSettings, "LastTab"), "1");
}

TEST_F(EndSession, EndOfTheWindowsSession) {
  StartProgram();
  program.OpenTab(2);
  EndWindowsSession();
  ExpectCleanEnd(program);
  EXPECT_EQ(RegistryText(kSettings, "LastTab"), "2");
}

TEST_F(EndSession, EndOfTheWindowsSessionThatAnotherProgramRefuses) {
  StartProgram();
  EXPECT_NE(Ask(program.MainWindow(), WM_QUERYENDSESSION), 0);
  Ask(program.MainWindow(), WM_ENDSESSION, FALSE);
  program.OpenTab(3);
  EXPECT_TRUE(program.IsVisible("Option1")) << "the program keeps running";
  CloseProgram();
}

TEST_F(EndSession, EndOfTheWindowsSessionInTheMiddleOfARelease) {
  SetRegistryText(kSettings, "TryTimes", "1000000000");
  StartProgram();
  BeginLongRelease();
  EndWindowsSession();
  ExpectCleanEnd(program);
}

TEST_F(EndSession, EndOfTheWindowsSessionWhileABoxIsOpen) {
  StartProgram();
  OpenBox();
  EndWindowsSession();
  ExpectCleanEnd(program);
  EXPECT_EQ(RegistryText(kSettings, "LastTab"), "1");
}

TEST_F(EndSession, EndOfTheWindowsSessionAsksNothingAboutAnInvalidLimit) {
  SetRegistryText(kSettings, "AutoCPU", "300");
  StartProgram();
  EndWindowsSession();
  ExpectCleanEnd(program);
  EXPECT_EQ(RegistryText(kSettings, "AutoCPU"), "300");
  EXPECT_EQ(RegistryText(kSettings, "LastTab"), "0");
}

}  // namespace
}  // namespace qdix::e2e
