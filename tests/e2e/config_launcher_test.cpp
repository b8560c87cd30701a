// The shipped configL.exe and the list beside it. Each test restores the previous list afterwards.
#include <gtest/gtest.h>

#include "base/text.h"
#include "launcher/launcher_file.h"
#include "os/win32/win32_shell_files.h"
#include "tests/e2e/driver/dropped_files.h"
#include "tests/e2e/driver/file_keeper.h"
#include "tests/e2e/driver/hand.h"
#include "tests/e2e/driver/native_windows.h"
#include "tests/e2e/driver/photograph.h"
#include "tests/e2e/driver/shipped_program.h"
#include "tests/e2e/window_rules.h"

namespace qdix::e2e {
namespace {

/// Control number of the name field in the system's file dialog.
constexpr int kFileNameField = 0x47C;

std::string ThreeEntries() {
  return launcher::RecordBytes({"Editor", "C:\\WINDOWS\\NOTEPAD.EXE", "C:\\WINDOWS"}) +
         launcher::RecordBytes({"Caf\xE9 & Games", "\"C:\\Program Files\\Games\\Big Game.exe\" /full", ""}) +
         launcher::RecordBytes({"Calculator", "CALC.EXE", ""});
}

/// Asks a window whether the Windows session may end, without waiting: its program may ask the user first.
class SessionQuestion {
 public:
  explicit SessionQuestion(HWND window) {
    EXPECT_NE(SendMessageCallbackA(window, WM_QUERYENDSESSION, 0, 0, &SessionQuestion::Take,
                                   reinterpret_cast<ULONG_PTR>(this)),
              0);
  }
  SessionQuestion(const SessionQuestion&) = delete;
  SessionQuestion& operator=(const SessionQuestion&) = delete;
  ~SessionQuestion() = default;

  /// The answer arrives while this thread checks for messages.
  [[nodiscard]] bool IsAnswered() const {
    MSG message = {};
    PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE);
    return is_answered_;
  }
  [[nodiscard]] LRESULT Answer() const { return answer_; }

 private:
  static void CALLBACK Take(HWND /*window*/, UINT /*message*/, ULONG_PTR question, LRESULT answer) {
    auto& asked = *reinterpret_cast<SessionQuestion*>(question);
    asked.is_answered_ = true;
    asked.answer_ = answer;
  }

  bool is_answered_ = false;
  LRESULT answer_ = 0;
};

class ConfigSession : public testing::Test {
 protected:
  void TearDown() override {
    if (HasFailure()) {
      EXPECT_TRUE(
          Photograph(std::string("failed_") + testing::UnitTest::GetInstance()->current_test_info()->name()));
    }
    program.Kill();
  }

  void Start() {
    ASSERT_TRUE(program.Start());
    ASSERT_TRUE(program.WaitForWindow());
    ASSERT_TRUE(BringForward(program.MainWindow()));
  }
  void StartWith(const std::string& bytes) {
    ASSERT_TRUE(list.SetBytes(bytes));
    Start();
  }
  /// Returns the box or dialog that the program shows now. The test fails if none appears.
  [[nodiscard]] MessageBox AwaitBox() {
    EXPECT_TRUE(program.Await([this] { return program.MessageBoxes().size() == 1; }));
    const std::vector<MessageBox> boxes = program.MessageBoxes();
    return boxes.empty() ? MessageBox{} : boxes.front();
  }
  void ExpectEnd() { EXPECT_EQ(program.WaitForExit(), 0); }
  void ExpectKeyboardOn(const std::string& name) {
    EXPECT_TRUE(program.Await([&] { return program.FocusedControl() == name; }))
        << name << " expected, " << program.FocusedControl() << " has the keyboard";
  }
  /// Goes to a field by its access key and replaces its text.
  void TypeInto(char access_key, const std::string& field, const std::string& text) {
    PressKeyWith(VK_MENU, access_key);
    ExpectKeyboardOn(field);
    TypeText(text);
    EXPECT_TRUE(program.Await([&] { return program.Text(field) == text; })) << program.Text(field);
  }
  [[nodiscard]] bool HasRows(LRESULT count) {
    return program.Await([&] { return Ask(program.Control("lstPrograms"), LB_GETCOUNT) == count; });
  }
  [[nodiscard]] bool HasSelectedRow(LRESULT row) {
    return program.Await([&] { return Ask(program.Control("lstPrograms"), LB_GETCURSEL) == row; });
  }

  const FileKeeper list{ProgramPath("launcher.dat")};
  const FileKeeper backup{ProgramPath("launcher.bak")};
  const FileKeeper temporary{ProgramPath("launcher.tmp")};
  ShippedProgram program{ConfigLauncher()};
};

TEST_F(ConfigSession, ListIsShownAndClosesAtOnceIfUnchanged) {
  StartWith(ThreeEntries());
  EXPECT_EQ(program.Caption(), "Config Launcher");
  EXPECT_TRUE(HasRows(3));
  EXPECT_EQ(program.Text("txtName"), "Editor");
  EXPECT_EQ(program.Text("txtPath"), "C:\\WINDOWS\\NOTEPAD.EXE");
  EXPECT_EQ(program.Text("txtStartIn"), "C:\\WINDOWS");
  EXPECT_FALSE(program.IsEnabled("cmdMoveUp"));
  EXPECT_TRUE(program.IsEnabled("cmdMoveDown"));
  ExpectKeyboardOn("lstPrograms");
  EXPECT_TRUE(Photograph("config_launcher"));
  program.Press("cmdCancel");
  ExpectEnd();
  EXPECT_EQ(list.Bytes(), ThreeEntries());
}

TEST_F(ConfigSession, ListIsBuiltByKeyboardAndWrittenByteForByte) {
  Start();
  EXPECT_TRUE(Photograph("config_launcher_empty"));
  TypeInto('N', "txtName", "paint");
  TypeInto('C', "txtPath", "pbrush");
  TypeInto('S', "txtStartIn", "pictures");
  PressKeyWith(VK_MENU, 'A');
  const MessageBox question = AwaitBox();
  EXPECT_TRUE(question.text.starts_with("The launcher cannot use this folder")) << question.text;
  ASSERT_TRUE(PressButton(question, IDYES));
  ASSERT_TRUE(HasRows(1));
  TypeInto('N', "txtName", "calculator");
  TypeInto('C', "txtPath", "calc");
  PressKeyWith(VK_MENU, 'S');
  ExpectKeyboardOn("txtStartIn");
  PressKey(VK_DELETE);
  EXPECT_TRUE(program.Await([this] { return program.Text("txtStartIn").empty(); }));
  PressKeyWith(VK_MENU, 'A');
  ASSERT_TRUE(HasRows(2));
  PressKeyWith(VK_MENU, 'U');
  EXPECT_TRUE(HasSelectedRow(0));
  EXPECT_EQ(list.Bytes(), std::nullopt) << "the list was written before OK";
  PressKeyWith(VK_MENU, 'P');
  ExpectKeyboardOn("lstPrograms");
  PressKey(VK_RETURN);
  ExpectEnd();
  EXPECT_EQ(list.Bytes(), launcher::RecordBytes({"calculator", "calc", ""}) +
                              launcher::RecordBytes({"paint", "pbrush", "pictures"}));
  EXPECT_EQ(backup.Bytes(), std::nullopt);
  EXPECT_EQ(temporary.Bytes(), std::nullopt);
}

TEST_F(ConfigSession, PointerSelectsChangesMovesAndRemoves) {
  StartWith(ThreeEntries());
  const LRESULT row_height = Ask(program.Control("lstPrograms"), LB_GETITEMHEIGHT);
  ASSERT_TRUE(ClickAt(program.Control("lstPrograms"), {20, static_cast<LONG>(row_height * 5 / 2)}));
  EXPECT_TRUE(HasSelectedRow(2));
  EXPECT_TRUE(program.Await([this] { return program.Text("txtName") == "Calculator"; }));
  ASSERT_TRUE(Click(program.Control("txtName")));
  PressKey(VK_END);
  TypeText("2");
  ASSERT_TRUE(program.Await([this] { return program.Text("txtName") == "Calculator2"; }));
  ASSERT_TRUE(Click(program.Control("cmdChange")));
  EXPECT_TRUE(program.Await([this] { return program.HasSelected("lstPrograms", "Calculator2"); }));
  ASSERT_TRUE(Click(program.Control("cmdMoveUp")));
  EXPECT_TRUE(HasSelectedRow(1));
  ASSERT_TRUE(ClickAt(program.Control("lstPrograms"), {20, static_cast<LONG>(row_height / 2)}));
  EXPECT_TRUE(HasSelectedRow(0));
  ASSERT_TRUE(Click(program.Control("cmdRemove")));
  EXPECT_TRUE(HasRows(2));
  ASSERT_TRUE(Click(program.Control("cmdOK")));
  ExpectEnd();
  EXPECT_EQ(
      list.Bytes(),
      launcher::RecordBytes({"Calculator2", "CALC.EXE", ""}) +
          launcher::RecordBytes({"Caf\xE9 & Games", "\"C:\\Program Files\\Games\\Big Game.exe\" /full", ""}));
}

TEST_F(ConfigSession, CancelAndTheCloseButtonAskBeforeChangesAreLost) {
  StartWith(ThreeEntries());
  PressKeyWith(VK_MENU, 'D');
  ASSERT_TRUE(HasSelectedRow(1));
  PressKey(VK_ESCAPE);
  const MessageBox question = AwaitBox();
  EXPECT_EQ(question.title, "Config Launcher");
  EXPECT_EQ(question.text, "Do you want to discard your changes?");
  program.Close();
  PressKey(VK_RETURN);
  EXPECT_TRUE(program.Await([&] { return IsWindow(question.window) == 0; })) << "the default answer is No";
  EXPECT_TRUE(program.IsRunning());
  program.Close();
  ASSERT_TRUE(PressButton(AwaitBox(), IDYES));
  ExpectEnd();
  EXPECT_EQ(list.Bytes(), ThreeEntries());
}

TEST_F(ConfigSession, WhatIsTypedIsAskedForBeforeOkSavesWithoutIt) {
  StartWith(ThreeEntries());
  TypeInto('N', "txtName", "other");
  PressKey(VK_RETURN);
  const MessageBox question = AwaitBox();
  EXPECT_TRUE(question.text.starts_with("What you typed in the fields is not in the list.")) << question.text;
  EXPECT_TRUE(Photograph("config_launcher_question"));
  ASSERT_TRUE(PressButton(question, IDNO));
  EXPECT_EQ(program.Text("txtName"), "other");
  PressKeyWith(VK_MENU, 'H');
  EXPECT_TRUE(program.Await([this] { return program.HasSelected("lstPrograms", "other"); }));
  program.Press("cmdOK");
  ExpectEnd();
  EXPECT_EQ(launcher::ReadRecord(list.Bytes().value_or(""), 0).name, "other");
}

TEST_F(ConfigSession, BrowseStartsANewEntryThatAddAdds) {
  StartWith(ThreeEntries());
  PressKeyWith(VK_MENU, 'B');
  const MessageBox dialog = AwaitBox();
  Ask(GetDlgItem(dialog.window, kFileNameField), WM_SETTEXT, 0,
      reinterpret_cast<LPARAM>("C:\\windows\\regedit.exe"));
  ASSERT_TRUE(PressButton(dialog, IDOK));
  EXPECT_TRUE(program.Await([this] { return program.Text("txtName") == "regedit"; }))
      << program.Text("txtName");
  EXPECT_EQ(program.Text("txtPath"), "C:\\windows\\regedit.exe");
  EXPECT_EQ(program.Text("txtStartIn"), "C:\\windows");
  EXPECT_TRUE(HasSelectedRow(LB_ERR));
  EXPECT_FALSE(program.IsEnabled("cmdChange"));
  EXPECT_TRUE(Photograph("config_launcher_new_entry"));
  ASSERT_TRUE(Click(program.Control("cmdAdd")));
  EXPECT_TRUE(HasRows(4));
  ASSERT_TRUE(Click(program.Control("cmdOK")));
  ExpectEnd();
  EXPECT_EQ(list.Bytes(),
            ThreeEntries() + launcher::RecordBytes({"regedit", "C:\\windows\\regedit.exe", "C:\\windows"}));
}

TEST_F(ConfigSession, NewEmptiesTheFieldsAndASecondAddAsks) {
  StartWith(ThreeEntries());
  ASSERT_TRUE(Click(program.Control("cmdNew")));
  ExpectKeyboardOn("txtName");
  EXPECT_EQ(program.Text("txtName") + program.Text("txtPath") + program.Text("txtStartIn"), "");
  EXPECT_TRUE(HasSelectedRow(LB_ERR));
  TypeInto('N', "txtName", "paint");
  TypeInto('C', "txtPath", "pbrush");
  PressKeyWith(VK_MENU, 'A');
  ASSERT_TRUE(HasRows(4));
  PressKeyWith(VK_MENU, 'A');
  const MessageBox question = AwaitBox();
  EXPECT_TRUE(question.text.starts_with("\"paint\" is already in the list")) << question.text;
  EXPECT_TRUE(Photograph("config_launcher_twice"));
  ASSERT_TRUE(PressButton(question, IDNO));
  EXPECT_TRUE(HasRows(4));
  PressKeyWith(VK_MENU, 'E');
  ExpectKeyboardOn("txtName");
  EXPECT_EQ(program.Text("txtName"), "");
}

TEST_F(ConfigSession, KeysOfTheListMoveAndRemove) {
  StartWith(ThreeEntries());
  PressKeyWith(VK_MENU, 'P');
  ExpectKeyboardOn("lstPrograms");
  PressKeyWith(VK_MENU, VK_DOWN);
  EXPECT_TRUE(HasSelectedRow(1));
  PressKeyWith(VK_MENU, VK_DOWN);
  EXPECT_TRUE(HasSelectedRow(2));
  PressKeyWith(VK_MENU, VK_UP);
  EXPECT_TRUE(HasSelectedRow(1));
  EXPECT_TRUE(program.HasSelected("lstPrograms", "Editor"));
  PressKey(VK_DELETE);
  EXPECT_TRUE(HasRows(2));
  ExpectKeyboardOn("lstPrograms");
  program.Press("cmdOK");
  ExpectEnd();
  EXPECT_EQ(list.Bytes(), ThreeEntries().substr(launcher::kRecordBytes));
}

TEST_F(ConfigSession, LongNamesScrollSidewaysAndShortOnesDoNot) {
  StartWith(launcher::RecordBytes({std::string(55, 'W'), "A.EXE", ""}) + ThreeEntries());
  const HWND rows = program.Control("lstPrograms");
  const auto has_scroll_bar = [rows] { return (GetWindowLongA(rows, GWL_STYLE) & WS_HSCROLL) != 0; };
  RECT inner = {};
  GetClientRect(rows, &inner);
  EXPECT_TRUE(program.Await(has_scroll_bar));
  EXPECT_GT(Ask(rows, LB_GETHORIZONTALEXTENT), inner.right);
  EXPECT_TRUE(Photograph("config_launcher_long_name"));
  PressKeyWith(VK_MENU, 'P');
  ExpectKeyboardOn("lstPrograms");
  PressKey(VK_DELETE);
  ASSERT_TRUE(HasRows(3));
  EXPECT_TRUE(program.Await([&] { return !has_scroll_bar(); }));
}

TEST_F(ConfigSession, EndOfTheWindowsSessionAsksAboutTheList) {
  StartWith(ThreeEntries());
  EXPECT_NE(Ask(program.MainWindow(), WM_QUERYENDSESSION), 0) << "nothing is lost";
  PressKeyWith(VK_MENU, 'R');
  ASSERT_TRUE(HasRows(2));
  for (const int button : {IDCANCEL, IDYES}) {
    const SessionQuestion may_end(program.MainWindow());
    const MessageBox box = AwaitBox();
    EXPECT_EQ(box.text, "The list of programs has not been saved.\r\n\r\nDo you want to save it?");
    EXPECT_FALSE(may_end.IsAnswered());
    EXPECT_TRUE(Photograph("config_launcher_end_of_session"));
    ASSERT_TRUE(PressButton(box, button));
    EXPECT_TRUE(program.Await([&] { return may_end.IsAnswered(); }));
    EXPECT_EQ(may_end.Answer() != 0, button == IDYES);
    EXPECT_EQ(list.Bytes() == ThreeEntries(), button == IDCANCEL);
  }
  EXPECT_EQ(list.Bytes(), ThreeEntries().substr(launcher::kRecordBytes));
  Ask(program.MainWindow(), WM_ENDSESSION, TRUE);
  ExpectEnd();
}

TEST_F(ConfigSession, MinimisedWindowThatTheUserActivatesStaysMinimised) {
  StartWith(ThreeEntries());
  PressKeyWith(VK_MENU, 'R');
  ASSERT_TRUE(HasRows(2));
  ShowWindow(program.MainWindow(), SW_MINIMIZE);
  ASSERT_TRUE(program.Await([this] { return IsIconic(program.MainWindow()) != 0; }));
  SetForegroundWindow(program.MainWindow());
  // Comes after the messages that the activation left in the program's queue.
  program.Close();
  const MessageBox question = AwaitBox();
  EXPECT_NE(IsIconic(program.MainWindow()), 0);
  ASSERT_TRUE(PressButton(question, IDYES));
  ExpectEnd();
}

TEST_F(ConfigSession, RowThatIsRefusedStaysUnselected) {
  StartWith(ThreeEntries());
  TypeInto('N', "txtName", "other");
  PressKeyWith(VK_MENU, 'P');
  ExpectKeyboardOn("lstPrograms");
  PressKey(VK_DOWN);
  ASSERT_TRUE(PressButton(AwaitBox(), IDNO));
  EXPECT_TRUE(HasSelectedRow(0));
  EXPECT_EQ(program.Text("txtName"), "other");
  PressKey(VK_DOWN);
  ASSERT_TRUE(PressButton(AwaitBox(), IDYES));
  EXPECT_TRUE(HasSelectedRow(1));
  EXPECT_TRUE(program.Await([this] { return program.Text("txtName") == "Caf\xE9 & Games"; }));
  program.Press("cmdCancel");
  ExpectEnd();
}

TEST_F(ConfigSession, FieldsTakeNoMoreThanARecordHolds) {
  Start();
  TypeInto('N', "txtName", std::string(55, 'n'));
  TypeText("x");
  PressKeyWith(VK_MENU, 'C');
  ExpectKeyboardOn("txtPath");
  EXPECT_EQ(program.Text("txtName"), std::string(55, 'n'));
  EXPECT_EQ(Ask(program.Control("txtPath"), EM_GETLIMITTEXT), 255);
  EXPECT_EQ(Ask(program.Control("txtStartIn"), EM_GETLIMITTEXT), 255);
}

TEST_F(ConfigSession, ProgramIsBrowsedForInTheSystemDialog) {
  Start();
  PressKeyWith(VK_MENU, 'B');
  const MessageBox dialog = AwaitBox();
  EXPECT_EQ(dialog.title, "Browse");
  EXPECT_TRUE(Photograph("config_launcher_browse"));
  ASSERT_TRUE(PressButton(dialog, IDCANCEL));
  EXPECT_EQ(program.Text("txtPath"), "");
  PressKeyWith(VK_MENU, 'B');
  const MessageBox again = AwaitBox();
  const HWND field = GetDlgItem(again.window, kFileNameField);
  ASSERT_NE(field, nullptr);
  Ask(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("C:\\windows\\notepad.exe"));
  ASSERT_TRUE(PressButton(again, IDOK));
  EXPECT_TRUE(program.Await([this] { return program.Text("txtName") == "notepad"; }))
      << program.Text("txtName");
  EXPECT_EQ(program.Text("txtPath"), "C:\\windows\\notepad.exe");
  EXPECT_EQ(program.Text("txtStartIn"), "C:\\windows");
}

TEST_F(ConfigSession, FolderIsBrowsedForInTheSystemDialog) {
  StartWith(ThreeEntries());
  PressKeyWith(VK_MENU, 'W');
  const MessageBox dialog = AwaitBox();
  EXPECT_TRUE(Photograph("config_launcher_folder"));
  ASSERT_TRUE(PressButton(dialog, IDOK));
  EXPECT_TRUE(program.Await([this] { return IsWindowEnabled(program.MainWindow()) != 0; }));
  const std::string folder = base::UpperAscii(program.Text("txtStartIn"));
  EXPECT_EQ(folder, "C:\\WINDOWS") << "the current folder is selected initially";
}

TEST_F(ConfigSession, DroppedFilesAndTargetsOfShortcutsAreAdded) {
  const FileKeeper shortcut{"C:\\windows\\Sums.lnk"};
  os::win32::Win32ShellFiles shell;
  ASSERT_TRUE(shell.WriteShortcut(
      shortcut.Path(), {.target = "C:\\windows\\notepad.exe", .arguments = "sums.txt", .folder = "C:\\"}));
  StartWith(ThreeEntries());
  ASSERT_TRUE(DropFiles(program, {"C:\\windows\\regedit.exe", shortcut.Path(), "C:\\windows"}));
  const MessageBox message = AwaitBox();
  EXPECT_TRUE(message.text.ends_with("\r\n\r\nC:\\windows\r\n")) << message.text;
  ASSERT_TRUE(PressButton(message, IDOK));
  EXPECT_TRUE(HasRows(5));
  EXPECT_EQ(program.Text("txtName"), "Sums");
  EXPECT_EQ(base::UpperAscii(program.Text("txtPath")), "C:\\WINDOWS\\NOTEPAD.EXE SUMS.TXT");
  EXPECT_EQ(program.Text("txtStartIn"), "C:\\");
  program.Press("cmdOK");
  ExpectEnd();
  EXPECT_EQ(launcher::ReadRecord(list.Bytes().value_or(""), 3).path, "C:\\windows\\regedit.exe");
}

TEST_F(ConfigSession, DamagedListIsOpenedAndLeftAlone) {
  const std::string odd = ThreeEntries().substr(0, 848);
  ASSERT_TRUE(list.SetBytes(odd));
  ASSERT_TRUE(program.Start());
  const MessageBox message = AwaitBox();
  EXPECT_NE(message.text.find("The file ends in the middle of a program"), std::string::npos) << message.text;
  EXPECT_TRUE(Photograph("config_launcher_damaged"));
  ASSERT_TRUE(PressButton(message, IDOK));
  EXPECT_TRUE(HasRows(2));
  program.Press("cmdCancel");
  ExpectEnd();
  EXPECT_EQ(list.Bytes(), odd);
}

TEST_F(ConfigSession, ListThatAnotherProgramHoldsIsNotLost) {
  StartWith(ThreeEntries());
  PressKeyWith(VK_MENU, 'R');
  ASSERT_TRUE(HasRows(2));
  const HANDLE held =
      CreateFileA(list.Path().c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  program.Press("cmdOK");
  const MessageBox message = AwaitBox();
  EXPECT_TRUE(message.text.starts_with("The list of programs could not be saved.")) << message.text;
  ASSERT_TRUE(PressButton(message, IDOK));
  EXPECT_TRUE(HasRows(2));
  CloseHandle(held);
  EXPECT_EQ(list.Bytes(), ThreeEntries());
  EXPECT_EQ(temporary.Bytes(), std::nullopt);
  program.Press("cmdOK");
  ExpectEnd();
  EXPECT_EQ(list.Bytes(), ThreeEntries().substr(launcher::kRecordBytes));
}

TEST_F(ConfigSession, SecondCopyBringsTheFirstForwardAndEnds) {
  StartWith(ThreeEntries());
  ShowWindowAsync(program.MainWindow(), SW_MINIMIZE);
  ASSERT_TRUE(program.Await([this] { return IsIconic(program.MainWindow()) != 0; }));
  ShippedProgram second{ConfigLauncher()};
  ASSERT_TRUE(second.Start());
  EXPECT_EQ(second.WaitForExit(), 0);
  EXPECT_TRUE(program.Await([this] {
    return IsIconic(program.MainWindow()) == 0 && GetForegroundWindow() == program.MainWindow();
  }));
  program.Press("cmdCancel");
  ExpectEnd();
}

TEST_F(ConfigSession, TabKeyGoesThroughEverythingInOrder) {
  StartWith(ThreeEntries());
  PressKeyWith(VK_MENU, 'P');
  ExpectKeyboardOn("lstPrograms");
  for (const char* const next :
       {"cmdMoveDown", "cmdRemove", "txtName", "cmdNew", "txtPath", "cmdBrowsePath", "txtStartIn",
        "cmdBrowseStartIn", "cmdAdd", "cmdChange", "cmdOK", "cmdCancel", "lstPrograms"}) {
    PressKey(VK_TAB);
    ExpectKeyboardOn(next);
  }
}

TEST_F(ConfigSession, EveryControlFitsTheWindowAndTheWindowFits640By480) {
  Start();
  ExpectFitsOn640By480(program);
  ASSERT_GT(program.Controls().size(), 15U);
  ExpectControlsInsideTheWindow(program);
}

}  // namespace
}  // namespace qdix::e2e
