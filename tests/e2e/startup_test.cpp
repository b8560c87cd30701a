// Starting with Windows and the shortcut on the desktop: the real Run key, the real shell folders.
#include "base/text.h"
#include "os/win32/win32_shell.h"
#include "os/win32/win32_shell_files.h"
#include "screens/main_window.h"
#include "tests/e2e/driver/file_keeper.h"
#include "tests/e2e/session.h"

namespace qdix::e2e {
namespace {

std::string FolderPath(int number) { return os::win32::Win32ShellFiles().SpecialFolder(number) + '\\'; }
std::string StartUpPath(const char* name) {
  return FolderPath(os::kStartMenuFolder) + "Programs\\StartUp\\" + name;
}

class StartupSession : public Session {
 protected:
  void SetUp() override {
    Session::SetUp();
    MarkMachineAsKnown();
  }
  void StartOnTab() {
    StartProgram();
    program.OpenTab(screens::kStartupTab);
  }
  [[nodiscard]] static std::optional<std::string> Entry() { return RegistryText(kRunKey, kRunValue); }
  [[nodiscard]] bool DesktopLeadsToTheProgram() const {
    const auto shortcut = os::win32::Win32ShellFiles().ReadShortcut(on_desktop.Path());
    return shortcut && base::EqualsIgnoringCase(shortcut->target, ProgramPath("QDIX.exe"));
  }

  const FileKeeper in_startup{FolderPath(os::kStartupFolder) + "Quondix.lnk"};
  const FileKeeper in_start_menu{StartUpPath("Quondix.lnk")};
  const FileKeeper stale{StartUpPath("QDIX.exe.lnk")};
  const FileKeeper on_desktop{FolderPath(os::kDesktopFolder) + "Quondix.lnk"};
};

TEST_F(StartupSession, TickWritesTheRunValueAndClearingRemovesItAndBothShortcuts) {
  StartOnTab();
  EXPECT_FALSE(program.IsChecked("Check2"));
  program.Press("Check2");
  EXPECT_TRUE(program.Await([] { return Entry() == ProgramPath("QDIX.exe"); }));
  CreateDirectoryA(StartUpPath("").c_str(), nullptr);
  ASSERT_TRUE(in_start_menu.SetBytes("shortcut"));
  ASSERT_TRUE(stale.SetBytes("shortcut"));
  program.Press("Check2");
  EXPECT_TRUE(program.Await([] { return !Entry().has_value(); }));
  EXPECT_TRUE(program.Await([this] { return !in_start_menu.Bytes() && !stale.Bytes(); }));
  CloseProgram();
}

TEST_F(StartupSession, ShortcutInTheStartUpFolderTicksTheBoxAndWritesTheEntry) {
  ASSERT_TRUE(in_startup.SetBytes("shortcut"));
  StartOnTab();
  EXPECT_TRUE(program.IsChecked("Check2"));
  EXPECT_EQ(Entry(), ProgramPath("QDIX.exe"));
  CloseProgram();
}

TEST_F(StartupSession, EntryOfAnotherFolderIsRepaired) {
  SetRegistryText(kRunKey, kRunValue, "C:\\elsewhere\\QDIX.exe");
  StartOnTab();
  EXPECT_TRUE(program.IsChecked("Check2"));
  EXPECT_EQ(Entry(), ProgramPath("QDIX.exe"));
  CloseProgram();
}

TEST_F(StartupSession, StartRemovesAStaleShortcut) {
  CreateDirectoryA(StartUpPath("").c_str(), nullptr);
  ASSERT_TRUE(stale.SetBytes("shortcut"));
  StartOnTab();
  EXPECT_FALSE(program.IsChecked("Check2"));
  EXPECT_EQ(stale.Bytes(), std::nullopt);
  CloseProgram();
}

TEST_F(StartupSession, TwoPressesMakeOneDesktopShortcutThatStartsTheProgram) {
  StartOnTab();
  program.Press("Command5");
  EXPECT_TRUE(program.Await([this] { return DesktopLeadsToTheProgram(); }));
  EXPECT_TRUE(Photograph("desktop_shortcut"));
  program.Press("Command5");
  EXPECT_TRUE(program.Await([this] { return DesktopLeadsToTheProgram(); }));
  WIN32_FIND_DATAA found{};
  const HANDLE search = FindFirstFileA((FolderPath(os::kDesktopFolder) + "*.lnk").c_str(), &found);
  int shortcuts = 0;
  for (bool more = search != INVALID_HANDLE_VALUE; more; more = FindNextFileA(search, &found) != 0) {
    const std::string name = base::UpperAscii(found.cFileName);
    shortcuts += name.find("QUONDIX") != std::string::npos || name.find("QDIX") != std::string::npos ? 1 : 0;
  }
  FindClose(search);
  EXPECT_EQ(shortcuts, 1);
  CloseProgram();

  ASSERT_TRUE(os::win32::Win32Shell().ShellExecuteA("open", on_desktop.Path(), SW_SHOWNORMAL));
  ShippedProgram by_shortcut;
  ASSERT_TRUE(Eventually([&] { return by_shortcut.Adopt(); }));
  ASSERT_TRUE(by_shortcut.WaitForFirstReading());
  CloseCopy(by_shortcut);
}

TEST_F(StartupSession, WindowRespondsDuringTheWaitAndCanBeClosed) {
  StartOnTab();
  program.Press("Command5");
  program.OpenTab(screens::kAboutTab);
  EXPECT_EQ(program.OpenedTab(), screens::kAboutTab);
  CloseProgram();
}

}  // namespace
}  // namespace qdix::e2e
