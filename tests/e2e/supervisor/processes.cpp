#include "tests/e2e/supervisor/processes.h"

#include <algorithm>
#include <array>

#include "tests/e2e/driver/native_windows.h"

// clang-format off
#include <tlhelp32.h>
// clang-format on

namespace qdix::e2e {

namespace {

constexpr UINT kEndedBySupervisor = 98;
constexpr DWORD kEndLimitMs = 5000;
constexpr UINT kAnswerLimitMs = 500;

/// Asks the system for the title, not the window, which may hang.
std::string DescribeWindow(HWND window) {
  std::array<char, 128> title{};
  GetWindowTextA(window, title.data(), static_cast<int>(title.size()));
  DWORD_PTR answer = 0;
  const bool answers = SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_NORMAL, kAnswerLimitMs, &answer) != 0;
  return "    \"" + std::string(title.data()) + "\" (" + ClassOf(window) + ")" +
         (answers ? "" : ", does not answer") + "\n";
}

void End(const RunningProcess& process) {
  const HANDLE handle = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, process.id);
  if (handle == nullptr) return;
  TerminateProcess(handle, kEndedBySupervisor);
  WaitForSingleObject(handle, kEndLimitMs);
  CloseHandle(handle);
}

}  // namespace

std::vector<RunningProcess> RunningProcesses() {
  std::vector<RunningProcess> processes;
  const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
  if (snapshot == INVALID_HANDLE_VALUE) return processes;
  PROCESSENTRY32 entry = {};
  entry.dwSize = sizeof entry;
  for (BOOL found = Process32First(snapshot, &entry); found != 0; found = Process32Next(snapshot, &entry)) {
    processes.push_back({entry.th32ProcessID, entry.th32ParentProcessID, entry.szExeFile});
  }
  CloseHandle(snapshot);
  return processes;
}

std::string DescribeProcesses() {
  std::string text;
  for (const RunningProcess& process : RunningProcesses()) {
    text += "  " + std::to_string(process.id) + " (of " + std::to_string(process.parent_id) + ") " +
            process.file_name + "\n";
    for (const HWND window : TopLevelWindows(process.id)) {
      if (IsWindowVisible(window) != 0) text += DescribeWindow(window);
    }
  }
  return text;
}

void EndAllBut(const std::vector<RunningProcess>& kept) {
  for (const RunningProcess& process : RunningProcesses()) {
    const bool stays = process.id == GetCurrentProcessId() ||
                       std::any_of(kept.begin(), kept.end(),
                                   [&](const RunningProcess& one) { return one.id == process.id; });
    if (!stays) End(process);
  }
}

void EndAllOf(std::string_view file_name) {
  for (const RunningProcess& process : RunningProcesses()) {
    if (process.file_name == file_name) End(process);
  }
}

}  // namespace qdix::e2e
