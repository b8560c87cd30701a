// "Create shortcut Icon on desktop": through the recent documents, or directly if that makes no shortcut.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

constexpr const char* kProgram = "C:\\Program Files\\QDIX\\QDIX.exe";
constexpr const char* kOnDesktop = "C:\\WINDOWS\\Desktop\\Quondix.lnk";
constexpr const char* kInRecent = "C:\\WINDOWS\\Recent\\Quondix.lnk";

using Calls = std::vector<std::string>;

class DesktopShortcutTest : public testing::Test {
 protected:
  DesktopShortcutTest() {
    rig.SetHasRunBefore();
    rig.Start().MainWindow().SSTab1.ChooseTab(screens::kStartupTab);
  }
  void Press() { rig.program->StartupScreen().Command5.Press(); }
  /// Returns the calls of one press, without those that only query.
  Calls CallsOfAPress() {
    const std::size_t before = rig.machine.Calls().size();
    Press();
    Calls calls(rig.machine.Calls().begin() + static_cast<std::ptrdiff_t>(before), rig.machine.Calls().end());
    std::erase_if(calls, [](const std::string& call) {
      return call.starts_with("ModuleFileName") || call.starts_with("GetFileAttributesA");
    });
    return calls;
  }
  [[nodiscard]] std::string TargetAt(const std::string& path) const {
    const auto shortcut = rig.machine.ShortcutAt(path);
    return shortcut ? shortcut->target : "no shortcut";
  }

  ProgramRig rig;
};

TEST_F(DesktopShortcutTest, ShellMakesItInTheRecentDocumentsAndItIsCopied) {
  EXPECT_EQ(CallsOfAPress(),
            (Calls{"SpecialFolder(16)", "SpecialFolder(8)", "DeleteFileA(C:\\WINDOWS\\Recent\\Quondix.lnk)",
                   "SHAddToRecentDocs(2, C:\\Program Files\\QDIX\\QDIX.exe)",
                   "SHFileOperationA(4, C:\\WINDOWS\\Recent\\QDIX.exe.lnk||, "
                   "C:\\WINDOWS\\Recent\\Quondix.lnk||, 20)",
                   "SHFileOperationA(2, C:\\WINDOWS\\Recent\\Quondix.lnk||, C:\\WINDOWS\\Desktop\\||, 532)",
                   "WaitMs(2000)"}));
  EXPECT_EQ(TargetAt(kOnDesktop), kProgram);
  EXPECT_EQ(TargetAt(kInRecent), kProgram);
  EXPECT_TRUE(rig.machine.Misuses().empty());
}

TEST_F(DesktopShortcutTest, TwoPressesMakeOneShortcut) {
  Press();
  rig.machine.AddShortcut(kOnDesktop, {.target = "D:\\Old\\QDIX.exe", .arguments = {}, .folder = {}});
  Press();
  EXPECT_EQ(TargetAt(kOnDesktop), kProgram);
  EXPECT_FALSE(rig.machine.ReadFile("C:\\WINDOWS\\Desktop\\QDIX.exe.lnk").has_value());
  EXPECT_TRUE(rig.machine.Boxes().empty());
}

TEST_F(DesktopShortcutTest, IsWrittenDirectlyIfTheShellMakesNone) {
  rig.machine.MakeNoRecentShortcuts();
  EXPECT_EQ(CallsOfAPress(),
            (Calls{"SpecialFolder(16)", "SpecialFolder(8)", "DeleteFileA(C:\\WINDOWS\\Recent\\Quondix.lnk)",
                   "SHAddToRecentDocs(2, C:\\Program Files\\QDIX\\QDIX.exe)",
                   "WriteShortcut(C:\\WINDOWS\\Desktop\\Quondix.lnk, C:\\Program Files\\QDIX\\QDIX.exe)",
                   "WaitMs(2000)"}));
  EXPECT_EQ(TargetAt(kOnDesktop), kProgram);
  EXPECT_EQ(rig.machine.ShortcutAt(kOnDesktop)->folder, "C:\\Program Files\\QDIX\\");
}

TEST_F(DesktopShortcutTest, IsWrittenDirectlyIfTheCopyIsRefused) {
  rig.machine.FailNextCall("SHFileOperationA");
  Press();
  EXPECT_EQ(TargetAt(kOnDesktop), kProgram);
}

TEST_F(DesktopShortcutTest, IsWrittenDirectlyWithoutRecentDocuments) {
  rig.machine.SetSpecialFolder(os::kRecentFolder, "");
  // A path built from an empty folder would find this file.
  rig.machine.WriteFile("Quondix.lnk", "somebody's");
  const Calls calls = CallsOfAPress();
  EXPECT_TRUE(
      std::count(calls.begin(), calls.end(), "SHAddToRecentDocs(2, C:\\Program Files\\QDIX\\QDIX.exe)"))
      << "the shell is still asked";
  EXPECT_EQ(TargetAt(kOnDesktop), kProgram);
  EXPECT_EQ(rig.machine.ReadFile("Quondix.lnk"), "somebody's");
}

TEST_F(DesktopShortcutTest, IsNotMadeWithoutADesktopFolder) {
  rig.machine.SetSpecialFolder(os::kDesktopFolder, "");
  Press();
  EXPECT_FALSE(rig.machine.ReadFile("Quondix.lnk").has_value());
  EXPECT_TRUE(rig.machine.Boxes().empty());
  EXPECT_TRUE(rig.machine.Misuses().empty());
}

TEST_F(DesktopShortcutTest, WindowCanBeClosedDuringTheWait) {
  rig.machine.OnPump([this](int) { rig.program->Form().Unload(); });
  Press();
  EXPECT_TRUE(rig.program->Form().Unloaded());
  EXPECT_EQ(TargetAt(kOnDesktop), kProgram);
}

}  // namespace
}  // namespace qdix::tests
