#include "tests/e2e/driver/shipped_program.h"

#include <algorithm>
#include <array>

#include "tests/e2e/driver/control_numbers_by_name.h"

// clang-format off
#include <commctrl.h>
// clang-format on

namespace qdix::e2e {

namespace {

constexpr const char* kMainClass = "QDIXMain";
constexpr const char* kApplicationClass = "ThunderRT6Main";
constexpr const char* kDialogClass = "#32770";
constexpr int kPollMs = 10;
constexpr UINT kAnswerTimeoutMs = 10000;

std::string ProgramPath() {
  std::string path = std::string("Z:") + QDIX_SOURCE_DIR + "/build/win9x/QDIX.exe";
  std::replace(path.begin(), path.end(), '/', '\\');
  return path;
}

std::string ClassOf(HWND window) {
  std::array<char, 64> name{};
  GetClassNameA(window, name.data(), static_cast<int>(name.size()));
  return name.data();
}

/// SendMessage to another process, with a limit: a window that hangs must fail a test, not hang it.
LRESULT Ask(HWND window, UINT message, WPARAM wparam = 0, LPARAM lparam = 0) {
  DWORD_PTR answer = 0;
  SendMessageTimeoutA(window, message, wparam, lparam, SMTO_NORMAL, kAnswerTimeoutMs, &answer);
  return static_cast<LRESULT>(answer);
}

LRESULT RowOf(HWND list, const std::string& text) {
  return Ask(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text.c_str()));
}

struct Search {
  DWORD process_id;
  const char* window_class;
  std::vector<HWND> found;
};

BOOL CALLBACK CollectWindow(HWND window, LPARAM context) {
  auto& search = *reinterpret_cast<Search*>(context);
  DWORD owner = 0;
  GetWindowThreadProcessId(window, &owner);
  if (owner == search.process_id && ClassOf(window) == search.window_class) search.found.push_back(window);
  return TRUE;
}

std::vector<HWND> TopLevelWindows(DWORD process_id, const char* window_class) {
  Search search{process_id, window_class, {}};
  EnumWindows(&CollectWindow, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

struct ChildSearch {
  int number;
  HWND found;
};

BOOL CALLBACK FindChild(HWND window, LPARAM context) {
  auto& search = *reinterpret_cast<ChildSearch*>(context);
  if (GetDlgCtrlID(window) != search.number) return TRUE;
  search.found = window;
  return FALSE;
}

}  // namespace

bool Eventually(const std::function<bool()>& condition, int deadline_ms) {
  const DWORD start = GetTickCount();
  while (!condition()) {
    if (GetTickCount() - start > static_cast<DWORD>(deadline_ms)) return false;
    Sleep(kPollMs);
  }
  return true;
}

std::string TextOf(HWND window) {
  std::array<char, 2048> text{};
  Ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  return text.data();
}

ShippedProgram::~ShippedProgram() {
  if (process_ == nullptr) return;
  if (IsRunning()) {
    TerminateProcess(process_, 99);
    WaitForSingleObject(process_, kDeadlineMs);
  }
  CloseHandle(process_);
}

bool ShippedProgram::Start() {
  STARTUPINFOA startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started = {};
  std::string command_line = "\"" + ProgramPath() + "\"";
  if (CreateProcessA(nullptr, command_line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                     &started) == 0) {
    return false;
  }
  CloseHandle(started.hThread);
  process_ = started.hProcess;
  process_id_ = started.dwProcessId;
  return true;
}

bool ShippedProgram::Attach() {
  const HWND main = FindWindowA(kMainClass, nullptr);
  if (main == nullptr) return false;
  GetWindowThreadProcessId(main, &process_id_);
  return true;
}

bool ShippedProgram::IsRunning() const {
  if (process_ == nullptr) return MainWindow() != nullptr;
  return WaitForSingleObject(process_, 0) == WAIT_TIMEOUT;
}

int ShippedProgram::WaitForExit(int deadline_ms) const {
  if (WaitForSingleObject(process_, static_cast<DWORD>(deadline_ms)) != WAIT_OBJECT_0) return -1;
  DWORD code = 0;
  GetExitCodeProcess(process_, &code);
  return static_cast<int>(code);
}

HWND ShippedProgram::MainWindow() const {
  const auto windows = TopLevelWindows(process_id_, kMainClass);
  return windows.empty() ? nullptr : windows.front();
}

HWND ShippedProgram::ApplicationWindow() const {
  const auto windows = TopLevelWindows(process_id_, kApplicationClass);
  return windows.empty() ? nullptr : windows.front();
}

/// The report of an implausible reading is ordinary where a machine has more memory than 32 bits count; it is
/// answered on the way.
bool ShippedProgram::WaitForWindow() {
  return Eventually([this] {
    AnswerBoxes();
    return MainWindow() != nullptr && IsWindowVisible(MainWindow()) != 0;
  });
}

std::string ShippedProgram::Caption() const { return TextOf(MainWindow()); }

HWND ShippedProgram::Control(const std::string& name) const {
  ChildSearch search{AddressOf(name).number, nullptr};
  if (search.number != 0) EnumChildWindows(MainWindow(), &FindChild, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

std::string ShippedProgram::Text(const std::string& name) const { return TextOf(Control(name)); }

bool ShippedProgram::IsEnabled(const std::string& name) const {
  const HWND control = Control(name);
  return control != nullptr && IsWindowEnabled(control) != 0;
}

RECT ShippedProgram::ScreenRect(const std::string& name) const {
  RECT rect = {};
  GetWindowRect(Control(name), &rect);
  return rect;
}

void ShippedProgram::OpenTab(int tab) const {
  const HWND strip = Control("SSTab1");
  Ask(strip, TCM_SETCURFOCUS, static_cast<WPARAM>(tab));
}

void ShippedProgram::Press(const std::string& name) const { PostMessageA(Control(name), BM_CLICK, 0, 0); }

void ShippedProgram::PressWithPointer(const std::string& name) const {
  SetForegroundWindow(MainWindow());
  const RECT rect = ScreenRect(name);
  SetCursorPos((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
  std::array<INPUT, 2> inputs = {};
  for (INPUT& input : inputs) input.type = INPUT_MOUSE;
  inputs[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
  inputs[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
  SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

bool ShippedProgram::Choose(const std::string& name, const std::string& text) const {
  const HWND list = Control(name);
  const LRESULT row = RowOf(list, text);
  if (row == LB_ERR) return false;
  Ask(list, LB_SETCURSEL, static_cast<WPARAM>(row));
  Ask(GetParent(list), WM_COMMAND, MAKEWPARAM(AddressOf(name).number, LBN_SELCHANGE),
      reinterpret_cast<LPARAM>(list));
  return true;
}

bool ShippedProgram::HasSelected(const std::string& name, const std::string& text) const {
  const HWND list = Control(name);
  const LRESULT row = RowOf(list, text);
  return row != LB_ERR && Ask(list, LB_GETCURSEL) == row;
}

void ShippedProgram::Close() const { PostMessageA(MainWindow(), WM_CLOSE, 0, 0); }

std::vector<std::uint64_t> ShippedProgram::CommittedBlocks(std::uint64_t at_least_bytes) const {
  const HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, process_id_);
  std::vector<std::uint64_t> sizes;
  const void* allocation = nullptr;
  MEMORY_BASIC_INFORMATION region = {};
  std::uintptr_t address = 0;
  while (VirtualQueryEx(process, reinterpret_cast<void*>(address), &region, sizeof region) != 0) {
    const bool is_ours = region.State == MEM_COMMIT && region.Type == MEM_PRIVATE;
    if (is_ours && !sizes.empty() && region.AllocationBase == allocation) {
      sizes.back() += region.RegionSize;
    } else if (is_ours) {
      allocation = region.AllocationBase;
      sizes.push_back(region.RegionSize);
    }
    const std::uintptr_t next = address + region.RegionSize;
    if (next <= address) break;
    address = next;
  }
  CloseHandle(process);
  std::erase_if(sizes, [at_least_bytes](std::uint64_t size) { return size < at_least_bytes; });
  return sizes;
}

std::uint64_t ShippedProgram::CommittedBytes() const {
  std::uint64_t sum = 0;
  for (const std::uint64_t size : CommittedBlocks(0)) sum += size;
  return sum;
}

std::vector<MessageBox> ShippedProgram::MessageBoxes() const {
  std::vector<MessageBox> boxes;
  for (const HWND window : TopLevelWindows(process_id_, kDialogClass)) {
    if (IsWindowVisible(window) == 0) continue;
    boxes.push_back({window, TextOf(window), TextOf(GetDlgItem(window, 0xFFFF))});
  }
  return boxes;
}

std::vector<std::string> ShippedProgram::AnswerBoxes() const {
  std::vector<std::string> texts;
  for (const MessageBox& box : MessageBoxes()) {
    texts.push_back(box.text);
    PostMessageA(box.window, WM_COMMAND, IDOK, 0);
    Eventually([&box] { return IsWindow(box.window) == 0; }, 5000);
  }
  return texts;
}

}  // namespace qdix::e2e
