// The shipped undo.exe on the real registry and the real system.ini of the prefix. Both are restored after
// each test.
#include <gtest/gtest.h>

#include <array>

#include "tests/e2e/driver/hand.h"
#include "tests/e2e/driver/native_windows.h"
#include "tests/e2e/driver/photograph.h"
#include "tests/e2e/driver/restart_watch.h"
#include "tests/e2e/driver/shipped_program.h"
#include "tests/e2e/driver/system_ini_keeper.h"
#include "tests/e2e/window_rules.h"

namespace qdix::e2e {
namespace {

constexpr const char* kIniBefore =
    "[boot]\r\nshell=Explorer.exe\r\n\r\n[386Enh]\r\nPagingDrive=D:\r\nMinPagingFileSize=0\r\n\r\n"
    "[vcache]\r\nMinFileCache=2048\r\n";
constexpr const char* kIniAfter =
    "[boot]\r\nshell=Explorer.exe\r\nsound=new.drv\r\n\r\n"
    "[386Enh]\r\nPagingDrive=C:\r\nMinPagingFileSize=65536\r\nMaxPagingFileSize=65536\r\nPaging=on\r\n\r\n"
    "[vcache]\r\nMinFileCache=4096\r\nmaxfilecache=8192\r\nchunksize=512\r\n";
/// Name of the original system.ini after its first replacement.
constexpr const char* kKeptFile = "SYSTEM.Q01";
constexpr std::array<const char*, 8> kBoxes{"chkMinFileCache",      "chkMaxFileCache", "chkChunkSize",
                                            "chkTemplate",          "chkPagingDrive",  "chkMinPagingFileSize",
                                            "chkMaxPagingFileSize", "chkPaging"};

/// A file that everybody can read and nobody can change.
class HeldFile {
 public:
  explicit HeldFile(const std::string& path)
      : file_(CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr)) {}
  HeldFile(const HeldFile&) = delete;
  HeldFile& operator=(const HeldFile&) = delete;
  ~HeldFile() { CloseHandle(file_); }
  [[nodiscard]] bool IsHeld() const { return file_ != INVALID_HANDLE_VALUE; }

 private:
  HANDLE file_;
};

class UndoSession : public testing::Test {
 protected:
  UndoSession() {
    DeleteTree(kMachineKey);
    DeleteTree(kTemplates);
    SetRegistryText(kTemplates, "", "Quondix");
    SetWindowsFile(kSystemIni, kIniAfter);
    SetWindowsFile(kSystemBackup, std::nullopt);
    SetWindowsFile(kKeptFile, std::nullopt);
  }
  void TearDown() override {
    SetWindowsFile(kKeptFile, std::nullopt);
    if (HasFailure()) {
      EXPECT_TRUE(
          Photograph(std::string("failed_") + testing::UnitTest::GetInstance()->current_test_info()->name()));
    }
  }

  /// Leaves what Q-DIX records of kIniBefore when it first changes the system.
  static void TakeRecord() {
    SetWindowsFile(kSystemBackup, kIniBefore);
    const RegistryTexts record{{"FirstSave", "1"}, {"OldMinCache", "2048"},     {"OldMaxCache", "0"},
                               {"OldChunk", "0"},  {"OldFileCache", "Desktop"}, {"OldPagingDrive", "D:"}};
    for (const auto& [name, text] : record) SetRegistryText(kMachineKey, name, text);
  }

  void Start() {
    ASSERT_TRUE(program.Start());
    ASSERT_TRUE(program.WaitForWindow());
  }
  void StartWithRecord() {
    TakeRecord();
    Start();
  }
  /// Returns the box that the program shows now. The test fails if none appears.
  [[nodiscard]] MessageBox AwaitBox() {
    EXPECT_TRUE(program.Await([this] { return program.MessageBoxes().size() == 1; }));
    const std::vector<MessageBox> boxes = program.MessageBoxes();
    return boxes.empty() ? MessageBox{} : boxes.front();
  }
  void ExpectEnd() { EXPECT_EQ(program.WaitForExit(), 0); }
  void Close() {
    program.Press("cmdClose");
    ExpectEnd();
  }

  const SystemIniKeeper keeper;
  ShippedProgram program{Undo()};
};

TEST_F(UndoSession, MissingRecordIsReported) {
  Start();
  EXPECT_EQ(program.Caption(), "Q-DIX Undo");
  EXPECT_TRUE(program.Text("lblState").starts_with("Nothing is recorded.")) << program.Text("lblState");
  for (const char* const box : kBoxes) EXPECT_FALSE(program.IsEnabled(box)) << box;
  EXPECT_FALSE(program.IsEnabled("cmdPutBack"));
  EXPECT_FALSE(program.IsEnabled("cmdRestore"));
  EXPECT_EQ(program.Text("lblPagingDriveNow"), "C:");
  EXPECT_TRUE(Photograph("undo_nothing_recorded"));
  Close();
  EXPECT_EQ(WindowsFile(kSystemIni), kIniAfter);
}

TEST_F(UndoSession, RecordIsShownBesideTheCurrentValues) {
  StartWithRecord();
  EXPECT_EQ(program.Text("lblMinFileCacheBefore"), "2048");
  EXPECT_EQ(program.Text("lblMinFileCacheNow"), "4096");
  EXPECT_EQ(program.Text("lblChunkSizeBefore"), "(none)");
  EXPECT_EQ(program.Text("lblTemplateBefore"), "Desktop");
  EXPECT_EQ(program.Text("lblTemplateNow"), "Quondix");
  EXPECT_EQ(program.Text("lblMinPagingFileSizeBefore"), "not recorded; backup: 0");
  EXPECT_EQ(program.Text("lblMaxPagingFileSizeBefore"), "(none)");
  EXPECT_EQ(program.Text("lblPagingBefore"), "not recorded; backup: (none)");
  for (const char* const box : kBoxes) {
    EXPECT_TRUE(program.IsEnabled(box)) << box;
    EXPECT_EQ(program.IsChecked(box), std::string(box) != "chkPaging") << box;
  }
  const std::string backup = program.Text("lblBackup");
  EXPECT_TRUE(backup.starts_with("Backup: system.qdix in the Windows folder (")) << backup;
  EXPECT_NE(backup.find(" at the command prompt), system.ini as of "), std::string::npos) << backup;
  ASSERT_TRUE(BringForward(program.MainWindow()));
  EXPECT_TRUE(Photograph("undo"));
  Close();
}

TEST_F(UndoSession, PutBackAsksWritesShowsAndOffersTheRestart) {
  StartWithRecord();
  program.Press("chkPaging");
  ASSERT_TRUE(program.Await([this] { return program.IsChecked("chkPaging"); }));
  program.Press("cmdPutBack");
  const MessageBox question = AwaitBox();
  EXPECT_EQ(question.title, "Q-DIX Undo");
  EXPECT_TRUE(question.text.starts_with("Q-DIX Undo will make these changes:")) << question.text;
  EXPECT_EQ(WindowsFile(kSystemIni), kIniAfter) << "the file was written before the answer";
  EXPECT_TRUE(Photograph("undo_question"));
  ASSERT_TRUE(PressButton(question, IDYES));
  const MessageBox offer = AwaitBox();
  EXPECT_TRUE(offer.text.starts_with("You must restart your computer")) << offer.text;
  ASSERT_TRUE(PressButton(offer, IDNO));
  EXPECT_EQ(SystemIniText("vcache", "MinFileCache"), "2048");
  EXPECT_EQ(SystemIniText("vcache", "MaxFileCache"), std::nullopt);
  EXPECT_EQ(SystemIniText("vcache", "ChunkSize"), std::nullopt);
  EXPECT_EQ(SystemIniText("386Enh", "PagingDrive"), "D:");
  EXPECT_EQ(SystemIniText("386Enh", "MinPagingFileSize"), "0");
  EXPECT_EQ(SystemIniText("386Enh", "MaxPagingFileSize"), std::nullopt);
  EXPECT_EQ(SystemIniText("386Enh", "Paging"), std::nullopt);
  EXPECT_EQ(SystemIniText("boot", "sound"), "new.drv") << "the entry belongs to another program";
  EXPECT_EQ(RegistryText(kTemplates, ""), "Desktop");
  EXPECT_EQ(program.Text("lblMinFileCacheNow"), "2048");
  for (const char* const box : kBoxes) EXPECT_FALSE(program.IsEnabled(box)) << box;
  EXPECT_EQ(RegistryText(kMachineKey, "OldMinCache"), "2048") << "the record stays";
  EXPECT_EQ(WindowsFile(kSystemBackup), kIniBefore);
  Close();
}

TEST_F(UndoSession, NoChangesNothing) {
  StartWithRecord();
  program.Press("cmdPutBack");
  ASSERT_TRUE(PressButton(AwaitBox(), IDNO));
  program.Press("cmdRestore");
  ASSERT_TRUE(PressButton(AwaitBox(), IDNO));
  EXPECT_EQ(WindowsFile(kSystemIni), kIniAfter);
  EXPECT_EQ(RegistryText(kTemplates, ""), "Quondix");
  Close();
}

TEST_F(UndoSession, OnlyTickedEntriesAreWritten) {
  StartWithRecord();
  for (const char* const box : kBoxes) {
    if (std::string(box) != "chkTemplate" && program.IsChecked(box)) program.Press(box);
  }
  ASSERT_TRUE(program.Await([this] { return !program.IsChecked("chkMaxPagingFileSize"); }));
  program.Press("cmdPutBack");
  const MessageBox question = AwaitBox();
  EXPECT_NE(question.text.find("File system template: put back Desktop"), std::string::npos);
  ASSERT_TRUE(PressButton(question, IDYES));
  ASSERT_TRUE(PressButton(AwaitBox(), IDNO));
  EXPECT_EQ(RegistryText(kTemplates, ""), "Desktop");
  EXPECT_EQ(WindowsFile(kSystemIni), kIniAfter);
  Close();
}

TEST_F(UndoSession, WholeFileIsRestoredByteForByteAndOneRestartIsRequested) {
  StartWithRecord();
  const std::string odd_bytes("; \xFF\x01 odd\n\n[boot]\n[386Enh]\nPagingDrive=E:\n");
  SetWindowsFile(kSystemBackup, odd_bytes);
  RestartWatch watch(program.Process());
  ASSERT_TRUE(watch.Begin());
  program.Press("cmdRestore");
  const MessageBox warning = AwaitBox();
  EXPECT_TRUE(warning.text.starts_with("All of system.ini will be replaced")) << warning.text;
  EXPECT_TRUE(Photograph("undo_warning"));
  ASSERT_TRUE(PressButton(warning, IDYES));
  const MessageBox news = AwaitBox();
  EXPECT_TRUE(news.text.starts_with("system.ini has been replaced. The old file is now SYSTEM.Q01."))
      << news.text;
  EXPECT_NE(news.text.find("is still \"Quondix\""), std::string::npos) << news.text;
  EXPECT_TRUE(Photograph("undo_replaced"));
  EXPECT_EQ(WindowsFile(kKeptFile), kIniAfter);
  ASSERT_TRUE(PressButton(news, IDOK));
  const MessageBox offer = AwaitBox();
  EXPECT_EQ(watch.Count(), 0U);
  EXPECT_EQ(WindowsFile(kSystemIni), odd_bytes);
  EXPECT_EQ(program.Text("lblPagingDriveNow"), "E:");
  ASSERT_TRUE(PressButton(offer, IDYES));
  ExpectEnd();
  EXPECT_EQ(watch.Count(), 1U);
  EXPECT_EQ(watch.Flags(), EWX_REBOOT);
  EXPECT_EQ(watch.Reserved(), 0U);
  EXPECT_EQ(WindowsFile(kSystemIni), odd_bytes);
  EXPECT_EQ(WindowsFile(kSystemBackup), odd_bytes);
}

TEST_F(UndoSession, FileThatCannotBeWrittenIsNamed) {
  StartWithRecord();
  const HeldFile held("C:\\windows\\system.ini");
  ASSERT_TRUE(held.IsHeld());
  program.Press("chkTemplate");
  program.Press("cmdPutBack");
  ASSERT_TRUE(PressButton(AwaitBox(), IDYES));
  const MessageBox failures = AwaitBox();
  EXPECT_TRUE(failures.text.starts_with("These settings could not be put back:")) << failures.text;
  EXPECT_NE(failures.text.find("[vcache] MinFileCache"), std::string::npos) << failures.text;
  EXPECT_EQ(failures.text.find("File system template"), std::string::npos) << "it was not chosen";
  ASSERT_TRUE(PressButton(failures, IDOK));
  program.Press("cmdRestore");
  ASSERT_TRUE(PressButton(AwaitBox(), IDYES));
  const MessageBox refusal = AwaitBox();
  EXPECT_TRUE(refusal.text.starts_with("system.ini could not be replaced, and has not been changed."))
      << refusal.text;
  ASSERT_TRUE(PressButton(refusal, IDOK));
  EXPECT_EQ(WindowsFile(kSystemIni), kIniAfter);
  Close();
}

TEST_F(UndoSession, DamagedBackupIsReportedAndNotUsed) {
  TakeRecord();
  SetWindowsFile(kSystemBackup, "[boot]\r\nshell=Explorer.exe\r\n[386Enh]\r\nPagingDr");
  Start();
  EXPECT_EQ(
      program.Text("lblBackup"),
      "system.qdix in the Windows folder is damaged: it ends in the middle of a line. It will not be used.");
  EXPECT_FALSE(program.IsEnabled("cmdRestore"));
  EXPECT_EQ(program.Text("lblPagingBefore"), "not recorded");
  ASSERT_TRUE(BringForward(program.MainWindow()));
  EXPECT_TRUE(Photograph("undo_damaged_backup"));
  Close();
}

TEST_F(UndoSession, WholeFileCanBeRestoredWithoutARecord) {
  SetWindowsFile(kSystemBackup, kIniBefore);
  Start();
  EXPECT_TRUE(program.Text("lblState")
                  .starts_with("Nothing is recorded, so you can only restore the whole of system.ini."));
  for (const char* const box : kBoxes) EXPECT_FALSE(program.IsEnabled(box)) << box;
  program.Press("cmdRestore");
  ASSERT_TRUE(PressButton(AwaitBox(), IDYES));
  ASSERT_TRUE(PressButton(AwaitBox(), IDOK));
  ASSERT_TRUE(PressButton(AwaitBox(), IDNO));
  EXPECT_EQ(WindowsFile(kSystemIni), kIniBefore);
  EXPECT_EQ(WindowsFile(kKeptFile), kIniAfter);
  EXPECT_TRUE(program.IsChecked("chkTemplate"));
  program.Press("cmdPutBack");
  ASSERT_TRUE(PressButton(AwaitBox(), IDYES));
  ASSERT_TRUE(PressButton(AwaitBox(), IDNO));
  EXPECT_EQ(RegistryText(kTemplates, ""), std::nullopt);
  Close();
}

TEST_F(UndoSession, SystemIniWithoutBootCausesAWarning) {
  TakeRecord();
  SetWindowsFile(kSystemIni, "[386Enh]\r\nPagingDrive=C:\r\n");
  Start();
  EXPECT_EQ(program.Text("lblState"),
            "Warning: system.ini has no [boot] section. Windows cannot start without it. Restore the whole "
            "file before you restart.");
  ASSERT_TRUE(BringForward(program.MainWindow()));
  EXPECT_TRUE(Photograph("undo_without_boot"));
  Close();
}

TEST_F(UndoSession, ClosingTheWindowDuringAQuestionEndsTheProgram) {
  StartWithRecord();
  program.Press("cmdPutBack");
  static_cast<void>(AwaitBox());
  program.Close();
  ExpectEnd();
  EXPECT_EQ(WindowsFile(kSystemIni), kIniAfter);
  EXPECT_EQ(RegistryText(kTemplates, ""), "Quondix");
}

TEST_F(UndoSession, KeyboardReachesEverything) {
  StartWithRecord();
  ASSERT_TRUE(BringForward(program.MainWindow()));
  PressKeyWith(VK_MENU, 'X');
  EXPECT_TRUE(program.Await([this] { return !program.IsChecked("chkMaxFileCache"); }));
  PressKey(VK_SPACE);
  EXPECT_TRUE(program.Await([this] { return program.IsChecked("chkMaxFileCache"); }));
  EXPECT_EQ(program.FocusedControl(), "chkMaxFileCache");
  for (const char* const next :
       {"chkChunkSize", "chkTemplate", "chkPagingDrive", "chkMinPagingFileSize", "chkMaxPagingFileSize",
        "chkPaging", "cmdPutBack", "cmdRestore", "cmdClose", "chkMinFileCache"}) {
    PressKey(VK_TAB);
    EXPECT_TRUE(program.Await([&] { return program.FocusedControl() == next; })) << next;
  }
  PressKey(VK_RETURN);
  const MessageBox question = AwaitBox();
  PressKey(VK_RETURN);
  EXPECT_TRUE(program.Await([&] { return IsWindow(question.window) == 0; })) << "the default answer is No";
  EXPECT_EQ(WindowsFile(kSystemIni), kIniAfter);
  PressKey(VK_ESCAPE);
  ExpectEnd();
}

TEST_F(UndoSession, FramesAreAsGreyAsTheWindow) {
  Start();
  ASSERT_TRUE(BringForward(program.MainWindow()));
  const COLORREF face = GetSysColor(COLOR_3DFACE);
  for (const char* const name : {"FrameCache", "FrameTemplate", "FrameSwapFile"}) {
    const RECT frame = program.ScreenRect(name);
    // The window exists before its inside is painted.
    EXPECT_TRUE(program.Await([&] {
      return ScreenColour({frame.left + 5, frame.bottom - 6}) == face;
    })) << name;
  }
  Close();
}

TEST_F(UndoSession, EveryControlFitsTheWindowAndTheWindowFits640By480) {
  Start();
  ExpectFitsOn640By480(program);
  ASSERT_GT(program.Controls().size(), 30U);
  ExpectControlsInsideTheWindow(program);
  Close();
}

}  // namespace
}  // namespace qdix::e2e
