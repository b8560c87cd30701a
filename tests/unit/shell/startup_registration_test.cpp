// Starting with Windows: the entry in the registry, the shortcuts in the StartUp folder, and the box.
#include <gtest/gtest.h>

#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

constexpr const char* kRunKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr const char* kProgram = "C:\\Program Files\\QDIX\\QDIX.exe";
constexpr const char* kStartUpShortcut = "C:\\WINDOWS\\Start Menu\\Programs\\StartUp\\Quondix.lnk";
constexpr const char* kStaleShortcut = "C:\\WINDOWS\\Start Menu\\Programs\\StartUp\\QDIX.exe.lnk";

class StartupRegistrationTest : public testing::Test {
 protected:
  StartupRegistrationTest() {
    rig.SetHasRunBefore();
    rig.machine.CreateRegistryKey(os::kHkeyLocalMachine, kRunKey);
  }
  void SetEntry(const std::string& path) {
    rig.machine.SetRegistryValue(os::kHkeyLocalMachine, kRunKey, "Quondix", path);
  }
  [[nodiscard]] std::optional<std::string> Entry() const {
    return rig.machine.RegistryText(os::kHkeyLocalMachine, kRunKey, "Quondix");
  }
  void AddShortcut(const char* path) {
    rig.machine.AddShortcut(path, {.target = kProgram, .arguments = {}, .folder = {}});
  }
  [[nodiscard]] bool Exists(const char* path) const { return rig.machine.ReadFile(path).has_value(); }
  void StartOnTab() { rig.Start().MainWindow().SSTab1.ChooseTab(screens::kStartupTab); }
  ui::CheckBox& Check2() { return rig.program->StartupScreen().Check2; }

  ProgramRig rig;
};

TEST_F(StartupRegistrationTest, ShortcutInTheStartUpFolderCountsAndWritesTheEntry) {
  AddShortcut(kStartUpShortcut);
  StartOnTab();
  EXPECT_TRUE(Check2().Ticked());
  EXPECT_EQ(Entry(), kProgram);
  EXPECT_TRUE(Exists(kStartUpShortcut));
}

TEST_F(StartupRegistrationTest, EntryOfAnotherFolderIsRepairedAtEachStart) {
  SetEntry("D:\\Old\\QDIX.exe");
  StartOnTab();
  EXPECT_TRUE(Check2().Ticked());
  EXPECT_EQ(Entry(), kProgram);
}

TEST_F(StartupRegistrationTest, WithNeitherTheBoxIsClearAndAStaleShortcutIsRemoved) {
  AddShortcut(kStaleShortcut);
  StartOnTab();
  EXPECT_FALSE(Check2().Ticked());
  EXPECT_FALSE(Exists(kStaleShortcut));
  EXPECT_EQ(Entry(), std::nullopt);
}

TEST_F(StartupRegistrationTest, StaleShortcutStaysWhileTheProgramIsRegistered) {
  SetEntry(kProgram);
  AddShortcut(kStaleShortcut);
  StartOnTab();
  EXPECT_TRUE(Exists(kStaleShortcut));
}

TEST_F(StartupRegistrationTest, WithoutShellFoldersTheEntryDecides) {
  rig.machine.SetSpecialFolder(os::kStartupFolder, "");
  rig.machine.SetSpecialFolder(os::kStartMenuFolder, "");
  // A path built from an empty folder would find this file.
  AddShortcut("Quondix.lnk");
  AddShortcut("Programs\\StartUp\\QDIX.exe.lnk");
  StartOnTab();
  EXPECT_FALSE(Check2().Ticked());
  EXPECT_TRUE(Exists("Programs\\StartUp\\QDIX.exe.lnk"));
}

TEST_F(StartupRegistrationTest, TickWritesTheBarePathAndClearingRemovesEverything) {
  StartOnTab();
  Check2().Press();
  EXPECT_EQ(Entry(), kProgram);
  AddShortcut(kStartUpShortcut);
  AddShortcut(kStaleShortcut);
  Check2().Press();
  EXPECT_EQ(Entry(), std::nullopt);
  EXPECT_FALSE(Exists(kStartUpShortcut));
  EXPECT_FALSE(Exists(kStaleShortcut));
  EXPECT_EQ(rig.machine.OpenKeyCount(), 0);
}

TEST_F(StartupRegistrationTest, ClearingWithoutAnEntryIsSilent) {
  SetEntry(kProgram);
  StartOnTab();
  Check2().Press();
  EXPECT_EQ(Entry(), std::nullopt);
  EXPECT_TRUE(rig.machine.Boxes().empty());
}

TEST_F(StartupRegistrationTest, EntryNotRemovedAtFirstIsRemovedAtTheSecondTry) {
  SetEntry(kProgram);
  StartOnTab();
  rig.machine.FailNextCall("RegDeleteValueA");
  Check2().Press();
  EXPECT_EQ(Entry(), std::nullopt);
}

TEST_F(StartupRegistrationTest, ClearingRemovesTheShortcutWithTheProgramsFileName) {
  rig.machine.SetModuleFileName("C:\\RAM\\MEMORY.EXE");
  SetEntry("C:\\RAM\\MEMORY.exe");
  AddShortcut("C:\\WINDOWS\\Start Menu\\Programs\\StartUp\\MEMORY.exe.lnk");
  StartOnTab();
  EXPECT_EQ(Entry(), "C:\\RAM\\MEMORY.exe");
  Check2().Press();
  EXPECT_FALSE(Exists("C:\\WINDOWS\\Start Menu\\Programs\\StartUp\\MEMORY.exe.lnk"));
}

TEST_F(StartupRegistrationTest, MissingRunKeyIsNotCreated) {
  ProgramRig bare;
  bare.SetHasRunBefore();
  bare.Start().MainWindow().SSTab1.ChooseTab(screens::kStartupTab);
  bare.program->StartupScreen().Check2.Press();
  EXPECT_FALSE(bare.machine.KeyExists(os::kHkeyLocalMachine, kRunKey));
  EXPECT_TRUE(bare.machine.Boxes().empty());
}

TEST_F(StartupRegistrationTest, FirstStartThatCouldNotRegisterShowsTheBoxClear) {
  ProgramRig bare;
  bare.Start();
  EXPECT_FALSE(bare.machine.KeyExists(os::kHkeyLocalMachine, kRunKey));
  EXPECT_FALSE(bare.program->StartupScreen().Check2.Ticked());
}

TEST_F(StartupRegistrationTest, ProgramInARootFolderUsesASingleSeparator) {
  rig.machine.SetModuleFileName("A:\\QDIX.exe");
  StartOnTab();
  Check2().Press();
  EXPECT_EQ(Entry(), "A:\\QDIX.exe");
}

TEST_F(StartupRegistrationTest, ProgramWithoutAKnownPathWritesNoEntry) {
  StartOnTab();
  rig.machine.SetModuleFileName("");
  Check2().Press();
  EXPECT_EQ(Entry(), std::nullopt);
}

}  // namespace
}  // namespace qdix::tests
