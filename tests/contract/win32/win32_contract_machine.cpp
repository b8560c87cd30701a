#include "tests/contract/win32/win32_contract_machine.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace qdix::contract {

namespace {

constexpr const char* kHiddenClass = "QdixContractHidden";
constexpr UINT kRunAction = WM_USER + 0x200;
constexpr UINT_PTR kBoxTimer = 1;
constexpr UINT kBoxTimerMs = 10;
/// Control number of the text in a message box.
constexpr int kBoxTextNumber = 0xFFFF;

HWND Native(os::WindowHandle window) { return reinterpret_cast<HWND>(window); }

void RegisterWindowClass(const std::string& name, WNDPROC procedure) {
  WNDCLASSA record{};
  record.lpfnWndProc = procedure;
  record.hInstance = GetModuleHandleA(nullptr);
  record.lpszClassName = name.c_str();
  ASSERT_NE(RegisterClassA(&record), 0) << name;
}

std::string TextOf(HWND window) {
  std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)), '\0');
  GetWindowTextA(window, text.data(), static_cast<int>(text.size()) + 1);
  return text;
}

BOOL CALLBACK TakeIfOpenBox(HWND window, LPARAM found) {
  char name[16] = {};
  GetClassNameA(window, name, sizeof(name));
  if (std::string(name) != "#32770" || !IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

/// Returns the message box of this thread that waits for an answer, or null.
HWND OpenBox() {
  HWND box = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), &TakeIfOpenBox, reinterpret_cast<LPARAM>(&box));
  return box;
}

void DeleteTree(HKEY parent, const std::string& path) {
  HKEY key = nullptr;
  if (RegOpenKeyExA(parent, path.c_str(), 0, KEY_ALL_ACCESS, &key) != ERROR_SUCCESS) return;
  char name[256];
  while (RegEnumKeyA(key, 0, name, sizeof(name)) == ERROR_SUCCESS) DeleteTree(key, name);
  RegCloseKey(key);
  RegDeleteKeyA(parent, path.c_str());
}

}  // namespace

Win32ContractMachine::Win32ContractMachine() {
  RegisterWindowClass(kHiddenClass, &HiddenProcedure);
  hidden_ = CreateWindowA(kHiddenClass, "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, GetModuleHandleA(nullptr),
                          nullptr);
  if (hidden_ == nullptr) {
    // Without it everything below would wait for ever for messages of a window that does not exist.
    std::fputs("no window can be made: these tests need a screen\n", stderr);
    std::abort();
  }
  SetWindowLongA(hidden_, GWL_USERDATA, reinterpret_cast<LONG>(this));
  clipboard_.SetOwner(hidden_);
}

Win32ContractMachine::~Win32ContractMachine() {
  for (HWND window : windows_) DestroyWindow(window);
  DestroyWindow(hidden_);
  classes_.emplace_back(kHiddenClass);
  for (const std::string& name : classes_) UnregisterClassA(name.c_str(), GetModuleHandleA(nullptr));
  // The next test must find an empty queue.
  MSG message;
  while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
  }
}

os::WindowHandle Win32ContractMachine::OpenWindow(const std::string& window_class, const std::string& title) {
  if (std::find(classes_.begin(), classes_.end(), window_class) == classes_.end()) {
    RegisterWindowClass(window_class, &DefWindowProcA);
    classes_.push_back(window_class);
  }
  HWND window = CreateWindowA(window_class.c_str(), title.c_str(), WS_OVERLAPPEDWINDOW, 50, 50, 200, 100,
                              nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
  ShowWindow(window, SW_SHOW);
  SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  windows_.push_back(window);
  return reinterpret_cast<os::WindowHandle>(window);
}

void Win32ContractMachine::CloseWindow(os::WindowHandle window) {
  std::erase(windows_, Native(window));
  DestroyWindow(Native(window));
}

void Win32ContractMachine::PlaceDirectlyBehind(os::WindowHandle window, os::WindowHandle front) {
  SetWindowPos(Native(window), Native(front), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void Win32ContractMachine::Minimise(os::WindowHandle window) { ShowWindow(Native(window), SW_MINIMIZE); }

bool Win32ContractMachine::IsMinimised(os::WindowHandle window) { return IsIconic(Native(window)) != FALSE; }

void Win32ContractMachine::Hide(os::WindowHandle window) { ShowWindow(Native(window), SW_HIDE); }

bool Win32ContractMachine::IsShown(os::WindowHandle window) {
  return IsWindowVisible(Native(window)) != FALSE;
}

void Win32ContractMachine::DoInNextPump(std::function<void()> action) {
  auto* owned = new std::function<void()>(std::move(action));
  PostMessageA(hidden_, kRunAction, 0, reinterpret_cast<LPARAM>(owned));
}

void Win32ContractMachine::AnswerNextBox(int button) {
  DoToNextBox([button](HWND box) { PostMessageA(box, WM_COMMAND, static_cast<WPARAM>(button), 0); });
}

void Win32ContractMachine::StopInNextBox() {
  DoToNextBox([this](HWND) { system_.Stop(); });
}

void Win32ContractMachine::DoToNextBox(std::function<void(HWND)> action) {
  hands_.push_back(std::move(action));
  SetTimer(hidden_, kBoxTimer, kBoxTimerMs, nullptr);
}

void Win32ContractMachine::LetTimePass(int ms) { Sleep(static_cast<DWORD>(ms)); }

void Win32ContractMachine::DeleteRegistryTree(os::KeyHandle root, const std::string& path) {
  DeleteTree(reinterpret_cast<HKEY>(root), path);
}

std::string Win32ContractMachine::ClipboardText() {
  if (OpenClipboard(hidden_) == 0) return "(held)";
  HANDLE const memory = GetClipboardData(CF_TEXT);
  std::string text = "(no text)";
  if (memory != nullptr) {
    text = static_cast<const char*>(GlobalLock(memory));
    GlobalUnlock(memory);
  }
  CloseClipboard();
  return text;
}

void Win32ContractMachine::HoldClipboard() {
  EXPECT_TRUE(OpenClipboard(Native(OpenWindow("QdixContractHolder", "Holds the clipboard"))));
}

void Win32ContractMachine::ReleaseClipboard() { EXPECT_TRUE(CloseClipboard()); }

void Win32ContractMachine::LookForBox() {
  HWND box = OpenBox();
  if (box == nullptr || hands_.empty()) return;
  boxes_.push_back({TextOf(GetDlgItem(box, kBoxTextNumber)), TextOf(box)});
  const auto hand = hands_.front();
  hands_.erase(hands_.begin());
  if (hands_.empty()) KillTimer(hidden_, kBoxTimer);
  hand(box);
}

LRESULT CALLBACK Win32ContractMachine::HiddenProcedure(HWND window, UINT message, WPARAM wparam,
                                                       LPARAM lparam) {
  if (message == kRunAction) {
    const std::unique_ptr<std::function<void()>> action(reinterpret_cast<std::function<void()>*>(lparam));
    (*action)();
    return 0;
  }
  if (message == WM_TIMER) {
    reinterpret_cast<Win32ContractMachine*>(GetWindowLongA(window, GWL_USERDATA))->LookForBox();
    return 0;
  }
  return DefWindowProcA(window, message, wparam, lparam);
}

std::unique_ptr<Machine> MakeMachine() { return std::make_unique<Win32ContractMachine>(); }

}  // namespace qdix::contract
