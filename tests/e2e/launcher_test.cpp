// The launcher of the shipped exe: the list that the editor makes, the programs started from it, and the
// failures.
#include <algorithm>
#include <array>

#include "launcher/launcher_file.h"
#include "screens/main_window.h"
#include "tests/e2e/driver/file_keeper.h"
#include "tests/e2e/driver/hand.h"
#include "tests/e2e/driver/notification_area.h"
#include "tests/e2e/driver/popup_menu.h"
#include "tests/e2e/machine.h"
#include "tests/e2e/session.h"

namespace qdix::e2e {
namespace {

/// The largest amount in one block.
constexpr int kLargestBlockMb = 250;
/// A third of the deadline, so that a lost key is pressed again.
constexpr int kPressAgainMs = kDeadlineMs / 3;

std::string Record(const std::string& name, const std::string& path, const std::string& start_in) {
  return launcher::RecordBytes({name, path, start_in});
}

/// Returns the size of the block for 66 % of the memory: megabytes of 1,040,000 bytes, plus one byte.
std::uint64_t BlockOfTwoThirds() {
  const auto amount_mb = static_cast<std::uint64_t>(std::min(Machine().TwoThirdsMb(), kLargestBlockMb));
  return WholePages(amount_mb * 1040000 + 1);
}

std::string Quoted(const std::string& path) { return '"' + path + '"'; }

/// Returns the folder in which these tests start the program.
std::string CurrentFolder() {
  std::array<char, MAX_PATH> folder{};
  GetCurrentDirectoryA(static_cast<DWORD>(folder.size()), folder.data());
  return folder.data();
}

class LauncherSession : public Session {
 protected:
  void SetUp() override {
    Session::SetUp();
    MarkMachineAsKnown();
    SetRegistryText(kSettings, "Launcher RAM", "4");
    SetRegistryText(kSettings, "LastTab", std::to_string(screens::kLauncherTab));
  }
  void TearDown() override {
    editor.Kill();
    Session::TearDown();
  }

  void StartWith(const std::string& bytes) {
    ASSERT_TRUE(list.SetBytes(bytes));
    StartProgram();
    ASSERT_TRUE(BringForward(program.MainWindow()));
    ASSERT_EQ(program.OpenedTab(), screens::kLauncherTab);
  }
  [[nodiscard]] bool HasRows(LRESULT count) const {
    return program.Await([&] { return Ask(program.Control("List5"), LB_GETCOUNT) == count; });
  }
  [[nodiscard]] POINT MiddleOfRow(int row) const {
    const LRESULT height = Ask(program.Control("List5"), LB_GETITEMHEIGHT);
    return {20, static_cast<LONG>(height * row + height / 2)};
  }
  void DoubleClickRow(int row) const {
    ASSERT_TRUE(PressAt(program.Control("List5"), MiddleOfRow(row), Press::kLeftTwice));
  }
  /// Checks the report of the started program: its command line and its folder.
  void ExpectStarted(const std::string& command_line, const std::string& folder) const {
    EXPECT_TRUE(program.Await([this] { return report.Bytes().has_value(); })) << "no program was started";
    EXPECT_STRCASEEQ(report.Bytes().value_or("").c_str(),
                     (command_line + "\r\n" + folder + "\r\nshow 1\r\n").c_str());
    SetFileBytes(report.Path(), std::nullopt);
  }
  /// Waits for a box that the launch opens, reads it and presses its only button.
  void ExpectBox(const std::string& text) const {
    ASSERT_TRUE(program.Await([this] { return program.MessageBoxes().size() == 1; })) << text;
    const MessageBox box = program.MessageBoxes().front();
    EXPECT_EQ(box.title, "Q-DIX");
    EXPECT_EQ(box.text, text);
    EXPECT_TRUE(PressButton(box, IDOK));
  }

  /// Opens the tray menu by the pointer.
  [[nodiscard]] MenuText OpenTrayMenu() const {
    EXPECT_TRUE(PressIcon(Press::kRight));
    EXPECT_TRUE(program.Await([this] { return program.OpenMenus().size() == 1; }));
    return ReadMenu(program.Process(), program.OpenMenus().front());
  }
  /// Opens its "Programs" submenu by the keyboard.
  [[nodiscard]] MenuText OpenSubmenu() const {
    const std::vector<HWND> before = program.OpenMenus();
    for (int entries_down = 0; entries_down < 4; ++entries_down) PressKey(VK_DOWN);
    PressKey(VK_RIGHT);
    EXPECT_TRUE(program.Await([this] { return program.OpenMenus().size() == 2; }));
    for (const HWND menu : program.OpenMenus()) {
      if (menu != before.front()) return ReadMenu(program.Process(), menu);
    }
    return {};
  }
  void CloseMenus() const {
    ASSERT_TRUE(program.Await([this] {
      if (program.OpenMenus().empty()) return true;
      PressKey(VK_ESCAPE);
      return false;
    }));
  }

  /// Goes to a field of the editor by its access key and replaces its text.
  void TypeIntoEditor(char access_key, const std::string& field, const std::string& text) {
    PressKeyWith(VK_MENU, access_key);
    ASSERT_TRUE(editor.Await([&] { return editor.FocusedControl() == field; })) << editor.FocusedControl();
    TypeText(text);
    ASSERT_TRUE(editor.Await([&] { return editor.Text(field) == text; })) << editor.Text(field);
  }
  [[nodiscard]] bool EditorHasRows(LRESULT count) {
    return editor.Await([&] { return Ask(editor.Control("lstPrograms"), LB_GETCOUNT) == count; });
  }
  void OpenEditor() {
    // Pressed again if nothing happens: while a window comes to the front, Wine can release a key that is
    // held.
    ASSERT_TRUE(program.Await([this] {
      PressKeyWith(VK_MENU, 'F');
      return Eventually([this] { return editor.Adopt(); }, kPressAgainMs);
    })) << "the editor did not start; the keyboard is on "
        << program.FocusedControl();
    ASSERT_TRUE(editor.WaitForWindow());
    ASSERT_TRUE(BringForward(editor.MainWindow()));
  }

  const FileKeeper list{ProgramPath("launcher.dat")};
  const FileKeeper report{WitnessReportPath()};
  ShippedProgram editor{ConfigLauncher()};
};

TEST_F(LauncherSession, MissingListIsEmptyAndIsCreatedEmpty) {
  StartProgram();
  EXPECT_TRUE(HasRows(0));
  EXPECT_EQ(list.Bytes(), "");
  EXPECT_EQ(OpenTrayMenu().disabled_entries, std::vector<std::string>{"Programs"});
  CloseMenus();
  CloseProgram();
}

TEST_F(LauncherSession, ListMadeInTheEditorAppearsInTheTabAndTheMenuWithinTheWatch) {
  StartProgram();
  ASSERT_TRUE(BringForward(program.MainWindow()));
  OpenEditor();
  TypeIntoEditor('N', "txtName", "witness");
  TypeIntoEditor('C', "txtPath", "regedit");
  PressKeyWith(VK_MENU, 'A');
  ASSERT_TRUE(EditorHasRows(1)) << editor.FocusedControl() << ", " << editor.Text("txtPath");
  ASSERT_TRUE(Click(editor.Control("txtName")));
  PressKey(VK_HOME);
  TypeText("second ");
  ASSERT_TRUE(editor.Await([this] { return editor.Text("txtName") == "second witness"; }));
  ASSERT_TRUE(Click(editor.Control("cmdAdd")));
  ASSERT_TRUE(EditorHasRows(2));
  ASSERT_TRUE(Click(editor.Control("cmdMoveUp")));
  EXPECT_TRUE(HasRows(0)) << "the list changed before the editor closed";
  ASSERT_TRUE(Click(editor.Control("cmdOK")));
  ASSERT_EQ(editor.WaitForExit(), 0);
  EXPECT_TRUE(HasRows(2));
  EXPECT_EQ(OpenTrayMenu().disabled_entries, std::vector<std::string>{});
  EXPECT_EQ(OpenSubmenu().entries, (std::vector<std::string>{"second witness", "witness"}));
  CloseMenus();
  CloseProgram();
}

TEST_F(LauncherSession, SecondPressBringsTheOpenEditorForward) {
  StartWith("");
  OpenEditor();
  const HWND first = editor.MainWindow();
  ASSERT_TRUE(BringForward(program.MainWindow()));
  program.Press("Command15");
  EXPECT_TRUE(program.Await([&] { return GetForegroundWindow() == first; }));
  int editors = 0;
  for (HWND window = FindWindowExA(nullptr, nullptr, nullptr, "Config Launcher"); window != nullptr;
       window = FindWindowExA(nullptr, window, nullptr, "Config Launcher")) {
    editors += ClassOf(window) == "QDIXMain" ? 1 : 0;
  }
  EXPECT_EQ(editors, 1);
  editor.Press("cmdCancel");
  EXPECT_EQ(editor.WaitForExit(), 0);
  CloseProgram();
}

TEST_F(LauncherSession, MinimisedEditorIsRestoredByTheButton) {
  StartWith("");
  OpenEditor();
  ShowWindow(editor.MainWindow(), SW_MINIMIZE);
  ASSERT_TRUE(editor.Await([this] { return IsIconic(editor.MainWindow()) != 0; }));
  ASSERT_TRUE(Click(program.Control("Command15")));
  EXPECT_TRUE(program.Await(
      [this] { return IsIconic(editor.MainWindow()) == 0 && GetForegroundWindow() == editor.MainWindow(); }));
  EXPECT_TRUE(Photograph("launcher_editor_restored"));
  PressKeyWith(VK_MENU, 'N');
  EXPECT_TRUE(editor.Await([this] { return editor.FocusedControl() == "txtName"; }))
      << "the editor takes the keyboard";
  editor.Press("cmdCancel");
  EXPECT_EQ(editor.WaitForExit(), 0);
  CloseProgram();
}

TEST_F(LauncherSession, LongNamesScrollSideways) {
  StartWith(Record("Short", "no such program", "") + Record(std::string(55, 'W'), "no such program", ""));
  RECT inner = {};
  GetClientRect(program.Control("List5"), &inner);
  EXPECT_GT(Ask(program.Control("List5"), LB_GETHORIZONTALEXTENT), inner.right);
  EXPECT_NE(GetWindowLongA(program.Control("List5"), GWL_STYLE) & WS_HSCROLL, 0);
  EXPECT_TRUE(Photograph("launcher_long_name"));
  CloseProgram();
}

TEST_F(LauncherSession, DoubleClickStartsTheProgramInItsFolder) {
  StartWith(Record("Editor", "no such program", "") +
            Record("Witness", Quoted(WitnessPath()) + " /one \"two words\"", "C:\\windows\\system"));
  EXPECT_TRUE(HasRows(2));
  EXPECT_TRUE(Photograph("launcher_tab"));
  DoubleClickRow(1);
  ExpectStarted(Quoted(WitnessPath()) + " /one \"two words\"", "C:\\windows\\system");
  EXPECT_TRUE(program.Await([this] { return program.IsEnabled("List5"); }));
  EXPECT_FALSE(program.IsVisible("txtFreeLabel"));
  CloseProgram();
}

TEST_F(LauncherSession, EnterStartsTheSelectedProgram) {
  StartWith(Record("Witness", Quoted(WitnessPath()), "C:\\"));
  PressKeyWith(VK_MENU, 'P');
  ASSERT_TRUE(program.Await([this] { return program.FocusedControl() == "List5"; }));
  PressKey(VK_DOWN);
  PressKey(VK_RETURN);
  ExpectStarted(Quoted(WitnessPath()), "C:\\");
  CloseProgram();
}

TEST_F(LauncherSession, BlankFolderMeansTheCurrentFolderOfTheProgram) {
  StartWith(Record("First", Quoted(WitnessPath()), "C:\\windows") +
            Record("Second", Quoted(WitnessPath()), ""));
  DoubleClickRow(0);
  ExpectStarted(Quoted(WitnessPath()), "C:\\windows");
  DoubleClickRow(1);
  ExpectStarted(Quoted(WitnessPath()), "C:\\windows");
  CloseProgram();
}

TEST_F(LauncherSession, EmptyPartOfTheListStartsNothing) {
  StartWith(Record("Witness", Quoted(WitnessPath()), ""));
  DoubleClickRow(5);
  DoubleClickRow(0);
  ExpectStarted(Quoted(WitnessPath()), CurrentFolder());
  EXPECT_EQ(report.Bytes(), std::nullopt) << "the program was started twice";
  CloseProgram();
}

TEST_F(LauncherSession, MissingProgramIsReportedAndTheOthersStillStart) {
  StartWith(Record("Missing", "C:\\no such folder\\nothing.exe", "") +
            Record("Witness", Quoted(WitnessPath()), "C:\\"));
  DoubleClickRow(0);
  ExpectBox("File not found");
  EXPECT_TRUE(program.IsEnabled("List5"));
  DoubleClickRow(1);
  ExpectStarted(Quoted(WitnessPath()), "C:\\");
  CloseProgram();
}

TEST_F(LauncherSession, MissingFolderIsReportedAndTheProgramStarts) {
  StartWith(Record("Witness", Quoted(WitnessPath()), "C:\\no such folder"));
  DoubleClickRow(0);
  ExpectBox("Path not found");
  EXPECT_TRUE(program.Await([this] { return report.Bytes().has_value(); }));
  CloseProgram();
}

TEST_F(LauncherSession, EntryOfTheMenuStartsItsProgramWithTheWindowHidden) {
  StartWith(Record("Caf\xE9 & Games", "no such program", "") +
            Record("Witness", Quoted(WitnessPath()) + " from the menu", "C:\\windows"));
  program.OpenTab(screens::kQuondixTab);
  program.Press("Command2");
  ASSERT_TRUE(program.Await([this] { return IsWindowVisible(program.MainWindow()) == 0; }));
  EXPECT_EQ(OpenTrayMenu().disabled_entries, std::vector<std::string>{});
  EXPECT_EQ(OpenSubmenu().entries, (std::vector<std::string>{"Caf\xE9 && Games", "Witness"}));
  EXPECT_TRUE(Photograph("tray_programs"));
  PressKey(VK_DOWN);
  PressKey(VK_RETURN);
  ExpectStarted(Quoted(WitnessPath()) + " from the menu", "C:\\windows");
  EXPECT_EQ(IsWindowVisible(program.MainWindow()), 0);
  CloseProgram();
}

TEST_F(LauncherSession, MemoryIsFreedBeforeTheProgramStarts) {
  SetRegistryText(kSettings, "Launcher RAM", "3");
  SetRegistryText(kSettings, "Launcher Retry", "5");
  StartWith(Record("Witness", Quoted(WitnessPath()), "C:\\"));
  EXPECT_TRUE(program.IsChecked("Option7"));
  EXPECT_TRUE(program.IsChecked("Slider_6(4)"));
  DoubleClickRow(0);
  ASSERT_TRUE(program.Await([this] { return !program.CommittedBlocks(100000000).empty(); }));
  EXPECT_FALSE(program.IsEnabled("List5"));
  EXPECT_TRUE(program.IsVisible("txtFreeLabel"));
  EXPECT_EQ(program.Text("txtFreeLabel"), "Freeing Up Memory");
  EXPECT_EQ(report.Bytes(), std::nullopt) << "the program started before the memory was freed";
  EXPECT_TRUE(Photograph("launcher_freeing"));
  const std::uint64_t block_bytes = BlockOfTwoThirds();
  EXPECT_TRUE(program.Await([&] {
    const std::vector<std::uint64_t> blocks = program.CommittedBlocks(100000000);
    return !blocks.empty() && blocks.front() == block_bytes;
  }));
  ExpectStarted(Quoted(WitnessPath()), "C:\\");
  EXPECT_TRUE(program.CommittedBlocks(100000000).empty());
  CloseProgram();
}

TEST_F(LauncherSession, TwentyFiveProgramsAreShown) {
  std::string bytes;
  for (int number = 1; number <= 25; ++number) {
    bytes += Record("Program " + std::to_string(number), "no such program", "");
  }
  StartWith(bytes);
  EXPECT_TRUE(HasRows(25));
  EXPECT_TRUE(OpenTrayMenu().disabled_entries.empty());
  EXPECT_EQ(OpenSubmenu().entries.size(), 25U);
  EXPECT_TRUE(Photograph("tray_programs_full"));
  CloseMenus();
  CloseProgram();
}

TEST_F(LauncherSession, TwentySixthProgramEndsTheProgram) {
  std::string bytes;
  for (int number = 1; number <= 26; ++number) bytes += Record("P", "no such program", "");
  ASSERT_TRUE(list.SetBytes(bytes));
  ASSERT_TRUE(program.Start());
  ASSERT_TRUE(program.Await([this] { return !program.MessageBoxes().empty(); }));
  ExpectBox("Run-time error '340':\r\n\r\nControl array element '25' doesn't exist");
  EXPECT_EQ(program.WaitForExit(), 0);
  EXPECT_EQ(list.Bytes(), bytes);
}

}  // namespace
}  // namespace qdix::e2e
