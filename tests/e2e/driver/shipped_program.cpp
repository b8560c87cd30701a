#include "tests/e2e/driver/shipped_program.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "tests/e2e/driver/native_windows.h"
#include "tests/e2e/driver/process_memory.h"

// clang-format off
#include <commctrl.h>
// clang-format on

namespace qdix::e2e {

namespace {

constexpr const char* kMainClass = "QDIXMain";
constexpr const char* kApplicationClass = "ThunderRT6Main";
constexpr const char* kMenuClass = "#32768";
constexpr const char* kCaptionEnds = " MB   Q-DIX";
constexpr UINT kIconNumber = 1;
constexpr UINT kKilled = 99;

/// The messages with the same meaning for a list box and for a drop-down list.
struct ListMessages {
  UINT find;
  UINT selected;
  UINT select;
  int chosen;
};

ListMessages MessagesOf(HWND list) {
  if (ClassOf(list) == "ComboBox") return {CB_FINDSTRINGEXACT, CB_GETCURSEL, CB_SETCURSEL, CBN_SELCHANGE};
  return {LB_FINDSTRINGEXACT, LB_GETCURSEL, LB_SETCURSEL, LBN_SELCHANGE};
}

/// Returns LB_ERR, which equals CB_ERR, if there is no such row.
LRESULT RowOf(HWND list, const std::string& text) {
  return Ask(list, MessagesOf(list).find, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text.c_str()));
}

}  // namespace

ShippedProgram::~ShippedProgram() {
  Kill();
  if (process_ != nullptr) CloseHandle(process_);
}

bool ShippedProgram::Start(const std::string& arguments) {
  STARTUPINFOA startup = {};
  return StartWith(arguments, startup);
}

bool ShippedProgram::StartShown(WORD show_command) {
  STARTUPINFOA startup = {};
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = show_command;
  return StartWith({}, startup);
}

bool ShippedProgram::StartWith(const std::string& arguments, STARTUPINFOA& startup) {
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started = {};
  std::string command_line = "\"" + ProgramPath(facts_.file_name) + "\" " + arguments;
  if (CreateProcessA(nullptr, command_line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                     &started) == 0) {
    return false;
  }
  CloseHandle(started.hThread);
  if (process_ != nullptr) CloseHandle(process_);
  process_ = started.hProcess;
  process_id_ = started.dwProcessId;
  is_ours_ = true;
  return true;
}

bool ShippedProgram::Open(DWORD access) {
  const HWND application = FindWindowA(kApplicationClass, facts_.title);
  if (application == nullptr) return false;
  GetWindowThreadProcessId(application, &process_id_);
  process_ = OpenProcess(access, FALSE, process_id_);
  return process_ != nullptr;
}

bool ShippedProgram::Attach() { return Open(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ | SYNCHRONIZE); }

bool ShippedProgram::Adopt() {
  is_ours_ = Open(PROCESS_ALL_ACCESS);
  return is_ours_;
}

void ShippedProgram::Kill() {
  if (!is_ours_ || !IsRunning()) return;
  TerminateProcess(process_, kKilled);
  WaitForSingleObject(process_, kDeadlineMs);
}

bool ShippedProgram::IsRunning() const { return WaitForSingleObject(process_, 0) == WAIT_TIMEOUT; }

int ShippedProgram::WaitForExit(int deadline_ms) const {
  if (WaitForSingleObject(process_, static_cast<DWORD>(Patience(deadline_ms))) != WAIT_OBJECT_0) return -1;
  DWORD code = 0;
  return GetExitCodeProcess(process_, &code) != 0 ? static_cast<int>(code) : -1;
}

bool ShippedProgram::Await(const std::function<bool()>& condition, int deadline_ms) const {
  return Eventually(
      [&] {
        for (const MessageBox& box : MessageBoxes()) {
          if (IsReportOfAnImplausibleReading(box) && !PressButton(box, IDOK)) return false;
        }
        return condition();
      },
      deadline_ms);
}

bool ShippedProgram::WaitForWindow() const {
  return Await([this] { return MainWindow() != nullptr && IsWindowVisible(MainWindow()) != 0; });
}

bool ShippedProgram::WaitForFirstReading() {
  return Await([this] {
    icon_owner_ = MainWindow();
    return icon_owner_ != nullptr && Caption().ends_with(kCaptionEnds);
  });
}

bool ShippedProgram::HasIcon() const { return HasNotificationIcon(icon_owner_, kIconNumber); }

bool ShippedProgram::TakeIcon() const { return TakeNotificationIcon(icon_owner_, kIconNumber); }

bool ShippedProgram::ShowsToolTip() const {
  const std::vector<HWND> tips = TopLevelWindows(process_id_, TOOLTIPS_CLASSA);
  return std::any_of(tips.begin(), tips.end(), [](HWND tip) { return IsWindowVisible(tip) != 0; });
}

std::vector<HWND> ShippedProgram::OpenMenus() const {
  std::vector<HWND> menus = TopLevelWindows(process_id_, kMenuClass);
  std::erase_if(menus, [](HWND menu) { return IsWindowVisible(menu) == 0; });
  return menus;
}

HWND ShippedProgram::FirstWindow(const char* window_class) const {
  const std::vector<HWND> windows = TopLevelWindows(process_id_, window_class);
  return windows.empty() ? nullptr : windows.front();
}

HWND ShippedProgram::MainWindow() const { return FirstWindow(kMainClass); }

HWND ShippedProgram::ApplicationWindow() const { return FirstWindow(kApplicationClass); }

std::string ShippedProgram::Caption() const { return TextOf(MainWindow()); }

const ControlAddress& ShippedProgram::AddressOf(const std::string& name) const {
  const ControlAddress* const address = facts_.map.Find(name);
  if (address == nullptr) {
    std::fprintf(stderr, "driver: no screen has a control %s\n", name.c_str());
    std::abort();
  }
  return *address;
}

HWND ShippedProgram::WindowOf(const ControlAddress& address) const {
  const std::vector<HWND> windows = WindowsInside(MainWindow());
  const auto found = std::find_if(windows.begin(), windows.end(),
                                  [&address](HWND window) { return GetDlgCtrlID(window) == address.number; });
  return found == windows.end() ? nullptr : *found;
}

HWND ShippedProgram::Control(const std::string& name) const {
  const ControlAddress& address = AddressOf(name);
  const HWND window = WindowOf(address);
  if (window == nullptr && address.tab >= 0 && IsRunning() && OpenedTab() != address.tab) {
    std::fprintf(stderr, "driver: %s has no window, since its tab %d was never open\n", name.c_str(),
                 address.tab);
    std::abort();
  }
  return window;
}

int ShippedProgram::WindowsOnTab(int tab) const {
  const auto has_window = [this, tab](const ControlAddress& control) {
    return control.tab == tab && WindowOf(control) != nullptr;
  };
  return static_cast<int>(std::count_if(Controls().begin(), Controls().end(), has_window));
}

std::string ShippedProgram::Text(const std::string& name) const { return TextOf(Control(name)); }

bool ShippedProgram::IsEnabled(const std::string& name) const { return IsWindowEnabled(Control(name)) != 0; }

bool ShippedProgram::IsVisible(const std::string& name) const {
  return IsWindowVisible(WindowOf(AddressOf(name))) != 0;
}

bool ShippedProgram::IsChecked(const std::string& name) const {
  return Ask(Control(name), BM_GETCHECK) == BST_CHECKED;
}

RECT ShippedProgram::ScreenRect(const std::string& name) const {
  RECT rect = {};
  GetWindowRect(Control(name), &rect);
  return rect;
}

std::string ShippedProgram::FocusedControl() const {
  GUITHREADINFO info = {};
  info.cbSize = sizeof info;
  if (GetGUIThreadInfo(GetWindowThreadProcessId(MainWindow(), nullptr), &info) == 0) return {};
  const ControlAddress* const focused = facts_.map.Find(GetDlgCtrlID(info.hwndFocus));
  return focused == nullptr ? std::string() : focused->name;
}

void ShippedProgram::OpenTab(int tab) const {
  Ask(Control("SSTab1"), TCM_SETCURFOCUS, static_cast<WPARAM>(tab));
}

void ShippedProgram::BeginToOpenTab(int tab) const {
  PostMessageA(Control("SSTab1"), TCM_SETCURFOCUS, static_cast<WPARAM>(tab), 0);
}

int ShippedProgram::OpenedTab() const { return static_cast<int>(Ask(Control("SSTab1"), TCM_GETCURSEL)); }

void ShippedProgram::Press(const std::string& name) const { PostMessageA(Control(name), BM_CLICK, 0, 0); }

bool ShippedProgram::Choose(const std::string& name, const std::string& text) const {
  const HWND list = Control(name);
  const LRESULT row = RowOf(list, text);
  if (row == LB_ERR) return false;
  const ListMessages messages = MessagesOf(list);
  Ask(list, messages.select, static_cast<WPARAM>(row));
  Ask(GetParent(list), WM_COMMAND, MAKEWPARAM(AddressOf(name).number, messages.chosen),
      reinterpret_cast<LPARAM>(list));
  return true;
}

bool ShippedProgram::HasSelected(const std::string& name, const std::string& text) const {
  const HWND list = Control(name);
  const LRESULT row = RowOf(list, text);
  return row != LB_ERR && Ask(list, MessagesOf(list).selected) == row;
}

void ShippedProgram::Close() const { PostMessageA(MainWindow(), WM_CLOSE, 0, 0); }

std::vector<std::uint64_t> ShippedProgram::CommittedBlocks(std::uint64_t at_least_bytes) const {
  return e2e::CommittedBlocks(process_, at_least_bytes);
}

std::uint64_t ShippedProgram::CommittedBytes() const { return e2e::CommittedBytes(process_); }

std::vector<std::string> ShippedProgram::AnswerBoxes() const {
  std::vector<std::string> texts;
  for (const MessageBox& box : MessageBoxes()) {
    if (PressButton(box, IDOK)) texts.push_back(box.text);
  }
  return texts;
}

}  // namespace qdix::e2e
