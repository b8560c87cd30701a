// The 387's control word after calls into foreign code, which leaves a different one behind on Windows 9x.
#include "os/win32/dropped_files.h"
#include "os/win32/win32_file_dialogs.h"
#include "os/win32/win32_printer.h"
#include "tests/contract/win32/demo_window.h"
#include "tests/contract/win32/win32_contract_machine.h"

namespace qdix::contract {
namespace {

/// 53 bits, to nearest, exceptions masked.
constexpr unsigned short kOurs = 0x027F;
/// 24 bits, toward zero.
constexpr unsigned short kAnother = 0x0C7F;

unsigned short ControlWord() {
  unsigned short word = 0;
  asm volatile("fnstcw %0" : "=m"(word));
  return word;
}

void SetControlWord(unsigned short word) { asm volatile("fldcw %0" ::"m"(word)); }

class FloatControlWin32 : public testing::Test {
 protected:
  FloatControlWin32() : former_(ControlWord()) {}
  ~FloatControlWin32() override { SetControlWord(former_); }

  /// Sets the other control word before the call, which has the same effect as foreign code setting it during
  /// the call.
  template <class Call>
  static void ExpectOursAfter(const char* name, Call call) {
    SetControlWord(kAnother);
    call();
    EXPECT_EQ(ControlWord(), kOurs) << name;
  }

  Win32ContractMachine machine;
  const os::System& system = machine.GetSystem();

 private:
  unsigned short former_;
};

TEST_F(FloatControlWin32, IsSetAgainAfterTheShell) {
  ExpectOursAfter("SpecialFolder", [this] { system.shell_files.SpecialFolder(os::kDesktopFolder); });
  ExpectOursAfter("SHFileOperationA", [this] {
    system.shell_files.SHFileOperationA(os::kFoRename, std::string("C:\\qdix none\0", 13),
                                        std::string("C:\\qdix other\0", 14),
                                        os::kFofSilent | os::kFofNoConfirmation);
  });
  ExpectOursAfter("SHAddToRecentDocs",
                  [this] { system.shell_files.SHAddToRecentDocs(os::kShardPath, "C:\\qdix none"); });
  ExpectOursAfter("ReadShortcut",
                  [this] { EXPECT_FALSE(system.shell_files.ReadShortcut("C:\\qdix none.lnk").has_value()); });
  ExpectOursAfter("WriteShortcut", [this] {
    EXPECT_FALSE(system.shell_files.WriteShortcut("C:\\qdix none\\none.lnk", {"C:\\none.exe", "", ""}));
  });
  ExpectOursAfter("ShellExecuteA",
                  [this] { EXPECT_FALSE(system.shell.ShellExecuteA("Open", "C:\\qdix none.htm", SW_SHOW)); });
  ExpectOursAfter("Shell_NotifyIconA",
                  [this] { EXPECT_FALSE(system.shell.Shell_NotifyIconA(os::kNimModify, {})); });
  ExpectOursAfter("TakeDroppedPaths", [] { EXPECT_TRUE(os::win32::TakeDroppedPaths(0).empty()); });
}

TEST_F(FloatControlWin32, IsSetAgainAfterDialogs) {
  os::win32::Win32FileDialogs dialogs;
  const auto cancel = [this] {
    machine.DoToNextBox([](HWND box) { PostMessageA(box, WM_COMMAND, IDCANCEL, 0); });
  };
  cancel();
  ExpectOursAfter("GetOpenFileNameA", [&] {
    EXPECT_EQ(dialogs.GetOpenFileNameA({.title = "Look", .filter = "All\0*.*\0", .folder = ""}), "");
  });
  cancel();
  ExpectOursAfter("SHBrowseForFolderA", [&] { EXPECT_EQ(dialogs.SHBrowseForFolderA("Which?", ""), ""); });
  os::win32::Win32Printer printer;
  machine.AnswerNextBox(IDOK);
  ExpectOursAfter("PrintDlgA", [&] { static_cast<void>(printer.PrintDlgA()); });
}

TEST_F(FloatControlWin32, IsSetAgainAfterThePrinterDriver) {
  os::win32::Win32Printer printer;
  printer.Open(CreateCompatibleDC(nullptr));
  ExpectOursAfter("GetDeviceCaps", [&] { static_cast<void>(printer.GetDeviceCaps()); });
  ExpectOursAfter("StartDocA", [&] { static_cast<void>(printer.StartDocA("Document")); });
  ExpectOursAfter("StartPage", [&] { static_cast<void>(printer.StartPage()); });
  ExpectOursAfter("EndPage", [&] { static_cast<void>(printer.EndPage()); });
  ExpectOursAfter("EndDoc", [&] { static_cast<void>(printer.EndDoc()); });
  ExpectOursAfter("AbortDoc", [&] { printer.AbortDoc(); });
  ExpectOursAfter("DeleteDC", [&] { printer.DeleteDC(); });
}

struct WordSeen {
  unsigned short word = 0;
  base::Status Look() {
    word = ControlWord();
    return base::kDone;
  }
};

TEST_F(FloatControlWin32, HandlerSeesOursEvenInsideAForeignMessageLoop) {
  DemoWindow demo;
  demo.form.Show();
  WordSeen seen;
  demo.go.OnClick = ui::Handler::To<&WordSeen::Look>(seen);
  SetControlWord(kAnother);
  demo.Send(demo.go, BM_CLICK);
  EXPECT_EQ(seen.word, kOurs);
}

}  // namespace
}  // namespace qdix::contract
