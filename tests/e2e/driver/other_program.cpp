#include "tests/e2e/driver/other_program.h"

#include <algorithm>
#include <vector>

#include "tests/e2e/driver/native_windows.h"

namespace qdix::e2e {

namespace {

constexpr DWORD kEndLimitMs = 5000;

}  // namespace

bool OtherProgram::Start() {
  STARTUPINFOA startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started = {};
  std::string command_line = command_line_;
  if (CreateProcessA(nullptr, command_line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                     &started) == 0) {
    return false;
  }
  CloseHandle(started.hThread);
  process_ = started.hProcess;
  process_id_ = started.dwProcessId;
  return true;
}

bool OtherProgram::IsShown() const {
  const std::vector<HWND> windows = TopLevelWindows(process_id_, window_class_);
  return std::any_of(windows.begin(), windows.end(),
                     [](HWND window) { return IsWindowVisible(window) != 0; });
}

void OtherProgram::End() {
  if (process_ == nullptr) return;
  for (const HWND window : TopLevelWindows(process_id_, window_class_)) {
    PostMessageA(window, WM_CLOSE, 0, 0);
  }
  if (WaitForSingleObject(process_, kEndLimitMs) != WAIT_OBJECT_0) TerminateProcess(process_, 1);
  CloseHandle(process_);
  process_ = nullptr;
}

}  // namespace qdix::e2e
