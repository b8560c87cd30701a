// Makes one call of each kind that the strict Windows 95 must report, each in its own function, which the
// report must name. Then checks the answers that it must simulate. The exit code is the number of the first
// wrong answer, or 0.
#include <windows.h>
// clang-format off
#include <commctrl.h>
#include <shellapi.h>
#include <shlobj.h>
// clang-format on

#include <string_view>

#include "runtime/entry.h"

namespace planted {

namespace {

constexpr const char* kProfile = "planted.ini";
constexpr const char* kProfilePath = "C:\\windows\\planted.ini";
constexpr const char* kCopyPath = "C:\\windows\\planted.old";
constexpr const char* kSecondCopyPath = "C:\\windows\\planted.new";
constexpr WORD kHandCursor = 32649;
constexpr UINT kWheelLines = 0x68;
constexpr UINT kForegroundLock = 0x2000;
constexpr int kHotColour = 26;
/// For a copy of this program that only opens two windows, on a slow machine too.
constexpr DWORD kChildLimitMs = 60000;

/// A hidden window.
class Window {
 public:
  explicit Window(const char* window_class)
      : window_(CreateWindowExA(0, window_class, "", WS_POPUP, 0, 0, 20, 20, nullptr, nullptr, nullptr,
                                nullptr)) {}
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  ~Window() { DestroyWindow(window_); }
  [[nodiscard]] HWND Get() const { return window_; }

 private:
  HWND window_;
};

bool IsRtm() {
  OSVERSIONINFOA version{};
  version.dwOSVersionInfoSize = sizeof version;
  return GetVersionExA(&version) != 0 && version.dwMinorVersion == 0;
}

#define PLANTED [[gnu::noinline]] void

/// Ends the right of the start, which lasts until a program first waits for messages, and gives whoever has
/// the foreground the last input until the guard refuses it to this program. Only Windows 98 has the lock.
void LoseTheForeground() {
  constexpr DWORD kLimitMs = 10000;
  MSG message;
  PostMessageA(nullptr, WM_NULL, 0, 0);
  GetMessageA(&message, nullptr, 0, 0);
  if (IsRtm()) return;
  const DWORD begin_ms = GetTickCount();
  do {
    keybd_event(VK_SHIFT, 0, 0, 0);
    keybd_event(VK_SHIFT, 0, KEYEVENTF_KEYUP, 0);
  } while (SetForegroundWindow(GetDesktopWindow()) != FALSE && GetTickCount() - begin_ms < kLimitMs);
}

/// The WM_QUIT in the queue closes the box.
PLANTED BoxBehindOthers() {
  LoseTheForeground();
  PostQuitMessage(0);
  MessageBoxA(nullptr, "planted", "planted", MB_OK | MB_SETFOREGROUND);
}

PLANTED LookupOfAStub() { GetProcAddress(GetModuleHandleA("kernel32.dll"), "MoveFileExA"); }

PLANTED LaterRecord() {
  SCROLLINFO info{};
  info.cbSize = sizeof info + 4;
  info.fMask = SIF_POS;
  SetScrollInfo(nullptr, SB_CTL, &info, FALSE);
}

PLANTED LaterToolRecord() {
  const Window tips(TOOLTIPS_CLASSA);
  TOOLINFOA tool{};
  tool.cbSize = 44;
  SendMessageA(tips.Get(), TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
}

PLANTED MessageOfAnotherClass() {
  const Window list("LISTBOX");
  SendMessageA(list.Get(), BM_SETSTATE, FALSE, 0);
}

PLANTED LaterMessage() {
  constexpr UINT kChangeUiState = 0x127;
  const Window button("BUTTON");
  SendMessageA(button.Get(), kChangeUiState, 0, 0);
}

PLANTED LaterStyle() {
  HWND const tab = CreateWindowExA(0, WC_TABCONTROLA, "", WS_POPUP | 0x2, 0, 0, 20, 20, nullptr, nullptr,
                                   nullptr, nullptr);
  DestroyWindow(tab);
}

PLANTED LaterFlag() { SetWindowPos(nullptr, nullptr, 0, 0, 0, 0, 0x8000); }

PLANTED LaterNumber() {
  LPITEMIDLIST list = nullptr;
  SHGetSpecialFolderLocation(nullptr, 0x1A, &list);
}

PLANTED WaitWithADevice() {
  HDC const screen = GetDC(nullptr);
  MSG message{};
  PostMessageA(nullptr, WM_NULL, 0, 0);
  GetMessageA(&message, nullptr, 0, 0);
  ReleaseDC(nullptr, screen);
}

PLANTED TooManyDevices() {
  HDC screens[5] = {};
  for (HDC& screen : screens) screen = GetDC(nullptr);
  for (HDC const screen : screens) ReleaseDC(nullptr, screen);
}

PLANTED DeletionOfASelectedObject() {
  HDC const device = CreateCompatibleDC(nullptr);
  HBRUSH const brush = CreateSolidBrush(RGB(1, 2, 3));
  HGDIOBJ const former = SelectObject(device, brush);
  DeleteObject(brush);
  SelectObject(device, former);
  DeleteDC(device);
}

PLANTED DeletionOfAForeignObject() { DeleteObject(GetSysColorBrush(COLOR_WINDOW)); }

PLANTED MenuLeftBehind() { CreatePopupMenu(); }

PLANTED TrayIconLeftBehind() {
  const Window owner("STATIC");
  NOTIFYICONDATAA icon{};
  icon.cbSize = NOTIFYICONDATAA_V1_SIZE;
  icon.hWnd = owner.Get();
  Shell_NotifyIconA(NIM_ADD, &icon);
}

PLANTED WideCoordinate() {
  const Window button("BUTTON");
  MoveWindow(button.Get(), 0, 0, 40000, 20, FALSE);
}

PLANTED LongInterval() {
  const Window button("BUTTON");
  SetTimer(button.Get(), 1, 70000, nullptr);
}

PLANTED WideWord() {
  const Window list("LISTBOX");
  SendMessageA(list.Get(), LB_GETTEXTLEN, 0x12345, 0);
}

PLANTED RootWithoutBackslash() { GetDriveTypeA("C:"); }

PLANTED QuestionToAnEmptyDrive() { GetFileAttributesA("R:\\planted"); }

PLANTED ForeignControlWord() {
  EndDoc(nullptr);
  MSG message{};
  PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE);
}

PLANTED ClosedKey() {
  HKEY key = nullptr;
  RegOpenKeyExA(HKEY_CURRENT_USER, "Software", 0, KEY_READ, &key);
  RegCloseKey(key);
  RegQueryValueExA(key, "planted", nullptr, nullptr, nullptr, nullptr);
}

/// The second close of a key that others have open too takes it from them.
PLANTED KeyClosedTooOften() {
  HKEY one = nullptr;
  HKEY other = nullptr;
  RegOpenKeyExA(HKEY_CURRENT_USER, "Software", 0, KEY_READ, &one);
  RegOpenKeyExA(HKEY_CURRENT_USER, "Software", 0, KEY_READ, &other);
  RegCloseKey(one);
  RegCloseKey(one);
  RegCloseKey(other);
}

PLANTED KeyOpenedTooOften() {
  constexpr int kMaxOpenings = 0xFFFF;
  HKEY key = nullptr;
  for (int count = 0; count <= kMaxOpenings; ++count) {
    RegOpenKeyExA(HKEY_CURRENT_USER, "Software", 0, KEY_READ, &key);
  }
  for (int count = 0; count <= kMaxOpenings; ++count) RegCloseKey(key);
}

PLANTED KeyLeftOpen() {
  HKEY key = nullptr;
  RegOpenKeyA(HKEY_CURRENT_USER, "Software", &key);
}

PLANTED CopyOfAnUnwrittenProfile() {
  WritePrivateProfileStringA("planted", "planted", "1", kProfile);
  CopyFileA(kProfilePath, kCopyPath, FALSE);
  WritePrivateProfileStringA(nullptr, nullptr, nullptr, kProfile);
  DeleteFileA(kProfilePath);
  DeleteFileA(kCopyPath);
}

#undef PLANTED

constexpr void (*kReported[])() = {
    &BoxBehindOthers,
    &LookupOfAStub,
    &LaterRecord,
    &LaterToolRecord,
    &MessageOfAnotherClass,
    &LaterMessage,
    &LaterStyle,
    &LaterFlag,
    &LaterNumber,
    &WaitWithADevice,
    &TooManyDevices,
    &DeletionOfASelectedObject,
    &DeletionOfAForeignObject,
    &MenuLeftBehind,
    &TrayIconLeftBehind,
    &WideCoordinate,
    &LongInterval,
    &WideWord,
    &RootWithoutBackslash,
    &QuestionToAnEmptyDrive,
    &ForeignControlWord,
    &ClosedKey,
    &KeyClosedTooOften,
    &KeyOpenedTooOften,
    &KeyLeftOpen,
    &CopyOfAnUnwrittenProfile,
};

bool LacksLaterFunctions() {
  const bool is_missing = GetProcAddress(GetModuleHandleA("kernel32.dll"), "GetDiskFreeSpaceExA") == nullptr;
  return is_missing == IsRtm() &&
         GetProcAddress(GetModuleHandleA("kernel32.dll"), "GetTickCount64") == nullptr;
}

bool LacksLaterLibraries() { return LoadLibraryA("uxtheme.dll") == nullptr; }

bool AnswersLaterQuestionsWithNo() {
  UINT lines = 0;
  return (GetSysColorBrush(kHotColour) == nullptr) == IsRtm() &&
         (LoadCursorA(nullptr, MAKEINTRESOURCEA(kHandCursor)) == nullptr) == IsRtm() &&
         (SystemParametersInfoA(kWheelLines, 0, &lines, 0) == 0) == IsRtm() &&
         (SystemParametersInfoA(kForegroundLock, 0, &lines, 0) == 0) == IsRtm();
}

bool ScramblesTheLastError() {
  SetLastError(ERROR_SUCCESS);
  GetTickCount();
  return GetLastError() != ERROR_SUCCESS;
}

bool RefusesWhatIsNotReady() {
  SetErrorMode(SEM_FAILCRITICALERRORS);
  const bool is_refused =
      GetFileAttributesA("R:\\planted") == 0xFFFFFFFF && GetDriveTypeA("C:\\") == DRIVE_FIXED;
  SetErrorMode(0);
  return is_refused;
}

/// Only Windows 98 has the lock.
bool KeepsTheForegroundFromOthers() {
  const Window window("STATIC");
  ShowWindow(window.Get(), SW_SHOWNA);
  LoseTheForeground();
  return IsRtm() || SetForegroundWindow(window.Get()) == FALSE;
}

bool HasOneHandleForAKey() {
  HKEY one = nullptr;
  HKEY other = nullptr;
  RegOpenKeyA(HKEY_CURRENT_USER, "Software", &one);
  RegCreateKeyA(HKEY_CURRENT_USER, "SOFTWARE", &other);
  RegCloseKey(one);
  const bool is_open = RegQueryInfoKeyA(other, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                        nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
  RegCloseKey(other);
  return one == other && is_open;
}

char PlantedTextOf(const char* file) {
  char text[2] = "";
  GetPrivateProfileStringA("planted", "planted", "", text, sizeof text, file);
  return text[0];
}

/// A copy made before the flush has the old contents. Reading that copy writes the changes of the original.
bool KeepsProfilesInMemory() {
  WritePrivateProfileStringA("planted", "planted", "1", kProfile);
  WritePrivateProfileStringA(nullptr, nullptr, nullptr, kProfile);
  WritePrivateProfileStringA("planted", "planted", "2", kProfile);
  const bool is_read_back = PlantedTextOf(kProfile) == '2';
  CopyFileA(kProfilePath, kCopyPath, FALSE);
  const bool is_old = PlantedTextOf(kCopyPath) == '1';
  CopyFileA(kProfilePath, kSecondCopyPath, FALSE);
  const bool is_written = PlantedTextOf(kSecondCopyPath) == '2';
  for (const char* const file : {kProfilePath, kCopyPath, kSecondCopyPath}) DeleteFileA(file);
  return is_read_back && is_old && is_written;
}

bool ResetsThePrinterAtEachPage() {
  HDC const device = CreateCompatibleDC(nullptr);
  SetTextColor(device, RGB(1, 2, 3));
  SetTextAlign(device, TA_BASELINE);
  SetWindowOrgEx(device, 7, 7, nullptr);
  StartPage(device);
  POINT origin{};
  SetWindowOrgEx(device, 0, 0, &origin);
  const bool is_reset = SetTextColor(device, 0) == 0 && SetTextAlign(device, 0) == 0 && origin.x == 0;
  DeleteDC(device);
  return is_reset;
}

/// True if a bitmap from before the change can no longer be drawn, and a new one can.
bool OutdatesBitmapsWithTheDisplay() {
  HDC const screen = GetDC(nullptr);
  HDC const target = CreateCompatibleDC(screen);
  HDC const source = CreateCompatibleDC(screen);
  HBITMAP const before = CreateCompatibleBitmap(screen, 8, 8);
  HGDIOBJ const former = SelectObject(source, before);
  const bool is_drawn = BitBlt(target, 0, 0, 1, 1, source, 0, 0, SRCCOPY) != 0;
  const Window window("STATIC");
  SendMessageA(window.Get(), WM_DISPLAYCHANGE, 16, MAKELPARAM(640, 480));
  const bool is_outdated = BitBlt(target, 0, 0, 1, 1, source, 0, 0, SRCCOPY) == 0;
  HBITMAP const renewed = CreateCompatibleBitmap(screen, 8, 8);
  SelectObject(source, renewed);
  const bool is_renewed = BitBlt(target, 0, 0, 1, 1, source, 0, 0, SRCCOPY) != 0;
  SelectObject(source, former);
  for (HBITMAP const bitmap : {before, renewed}) DeleteObject(bitmap);
  for (HDC const device : {target, source}) DeleteDC(device);
  ReleaseDC(nullptr, screen);
  return is_drawn && is_outdated && is_renewed;
}

bool CutsCoordinates() {
  const Window button("BUTTON");
  MoveWindow(button.Get(), 65536 + 7, 0, 20, 20, FALSE);
  RECT box{};
  GetWindowRect(button.Get(), &box);
  return box.left == 7;
}

/// True if only the window without an owner is minimised.
bool FollowsTheStartCommand() {
  constexpr DWORD kFrame = WS_OVERLAPPEDWINDOW;
  HWND const owner =
      CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
  HWND const owned = CreateWindowExA(0, "STATIC", "", kFrame, 0, 0, 99, 99, owner, nullptr, nullptr, nullptr);
  HWND const free =
      CreateWindowExA(0, "STATIC", "", kFrame, 0, 0, 99, 99, nullptr, nullptr, nullptr, nullptr);
  ShowWindow(owned, SW_SHOW);
  ShowWindow(free, SW_SHOW);
  return IsIconic(owned) == 0 && IsIconic(free) != 0;
}

bool PassesTheStartCommandOn() {
  STARTUPINFOA start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESHOWWINDOW;
  start.wShowWindow = SW_SHOWMINNOACTIVE;
  PROCESS_INFORMATION started{};
  char command[] = "planted.exe shown";
  char path[MAX_PATH] = "";
  GetModuleFileNameA(nullptr, path, sizeof path);
  if (CreateProcessA(path, command, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &started) == 0)
    return false;
  DWORD code = 1;
  if (WaitForSingleObject(started.hProcess, kChildLimitMs) == WAIT_OBJECT_0) {
    GetExitCodeProcess(started.hProcess, &code);
  } else {
    TerminateProcess(started.hProcess, code);
  }
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
  return code == 0;
}

constexpr bool (*kPlayed[])() = {
    &LacksLaterFunctions,           &LacksLaterLibraries,   &AnswersLaterQuestionsWithNo,
    &ScramblesTheLastError,         &RefusesWhatIsNotReady, &KeepsTheForegroundFromOthers,
    &HasOneHandleForAKey,           &KeepsProfilesInMemory, &ResetsThePrinterAtEachPage,
    &OutdatesBitmapsWithTheDisplay, &CutsCoordinates,       &PassesTheStartCommandOn,
};

}  // namespace

}  // namespace planted

extern "C" int QdixMain(void* /*instance*/, int /*show_command*/) {
  if (std::string_view(GetCommandLineA()).ends_with("shown"))
    return planted::FollowsTheStartCommand() ? 0 : 1;
  InitCommonControls();
  for (const auto plant : planted::kReported) plant();
  int number = 0;
  for (const auto play : planted::kPlayed) {
    ++number;
    if (!play()) return number;
  }
  return 0;
}
