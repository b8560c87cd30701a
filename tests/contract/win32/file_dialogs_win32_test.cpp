// The system's file and folder dialogs, and files dropped on a window.
#include "os/win32/dropped_files.h"
#include "os/win32/win32_file_dialogs.h"
#include "tests/contract/win32/win32_contract_machine.h"

// clang-format off
#include <windows.h>
#include <shlobj.h>
// clang-format on

#include <cstring>

#include "base/text.h"

namespace qdix::contract {
namespace {

/// Control number of the name field in the file dialog.
constexpr int kFileNameField = 0x47C;
constexpr const char* kFilter = "Programs\0*.exe;*.com\0All files\0*.*\0";

class FileDialogsWin32 : public testing::Test {
 protected:
  FileDialogsWin32() {
    GetWindowsDirectoryA(windows_, sizeof(windows_));
    dialogs.SetOwner(reinterpret_cast<HWND>(machine.OpenWindow("QdixContractMain", "Main")));
  }
  [[nodiscard]] std::string Ask() {
    return base::UpperAscii(
        dialogs.GetOpenFileNameA({.title = "Look for it", .filter = kFilter, .folder = windows_}));
  }
  [[nodiscard]] std::string Windows() const { return base::UpperAscii(windows_); }

  char windows_[MAX_PATH] = {};
  Win32ContractMachine machine;
  os::win32::Win32FileDialogs dialogs;
};

TEST_F(FileDialogsWin32, FileIsPickedByItsNameInTheInitialFolder) {
  char before[MAX_PATH] = {};
  GetCurrentDirectoryA(sizeof(before), before);
  machine.DoToNextBox([](HWND box) {
    SendMessageA(GetDlgItem(box, kFileNameField), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("notepad.exe"));
    PostMessageA(box, WM_COMMAND, IDOK, 0);
  });
  EXPECT_EQ(Ask(), Windows() + "\\NOTEPAD.EXE");
  char after[MAX_PATH] = {};
  GetCurrentDirectoryA(sizeof(after), after);
  EXPECT_STREQ(after, before);
  ASSERT_EQ(machine.Boxes().size(), 1U);
  EXPECT_EQ(machine.Boxes()[0].title, "Look for it");
}

TEST_F(FileDialogsWin32, CancelPicksNothing) {
  machine.DoToNextBox([](HWND box) { PostMessageA(box, WM_COMMAND, IDCANCEL, 0); });
  EXPECT_EQ(Ask(), "");
  machine.DoToNextBox([](HWND box) { PostMessageA(box, WM_COMMAND, IDCANCEL, 0); });
  EXPECT_EQ(dialogs.SHBrowseForFolderA("Which?", windows_), "");
}

TEST_F(FileDialogsWin32, GivenFolderIsSelectedInitially) {
  machine.DoToNextBox([](HWND box) { PostMessageA(box, WM_COMMAND, IDOK, 0); });
  EXPECT_EQ(base::UpperAscii(dialogs.SHBrowseForFolderA("Which?", windows_)), Windows());
}

/// Lays out the memory as a drag source does: a header, the paths with a NUL behind each, and one more NUL.
/// An empty list has two NULs as well, because the system looks at the second one before it knows that there
/// is no path.
WPARAM MakeDrop(const std::string& paths) {
  constexpr std::size_t kNuls = 2;
  HGLOBAL const memory = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, sizeof(DROPFILES) + paths.size() + kNuls);
  auto* const heading = static_cast<DROPFILES*>(GlobalLock(memory));
  heading->pFiles = sizeof(DROPFILES);
  std::memcpy(heading + 1, paths.data(), paths.size());
  GlobalUnlock(memory);
  return reinterpret_cast<WPARAM>(memory);
}

TEST_F(FileDialogsWin32, DroppedFilesAreTakenInOrder) {
  using namespace std::string_literals;
  const std::string longest = "C:\\" + std::string(256, 'd');
  const std::string paths = "C:\\One.exe\0D:\\Two words\\T.exe\0"s + longest + "x\0"s + longest + "\0"s;
  EXPECT_EQ(os::win32::TakeDroppedPaths(MakeDrop(paths)),
            (std::vector<std::string>{"C:\\One.exe", "D:\\Two words\\T.exe", longest}))
      << "one path is longer than the system can open";
  EXPECT_TRUE(os::win32::TakeDroppedPaths(MakeDrop("")).empty());
}

TEST_F(FileDialogsWin32, WindowAcceptsDroppedFiles) {
  HWND window = reinterpret_cast<HWND>(machine.OpenWindow("QdixContractMain", "Drop here"));
  EXPECT_EQ(GetWindowLongA(window, GWL_EXSTYLE) & WS_EX_ACCEPTFILES, 0);
  os::win32::AcceptDroppedFiles(window);
  EXPECT_NE(GetWindowLongA(window, GWL_EXSTYLE) & WS_EX_ACCEPTFILES, 0);
}

}  // namespace
}  // namespace qdix::contract
