#include "tests/e2e/driver/help_windows.h"

#include <array>

#include "tests/e2e/driver/inside_process.h"
#include "tests/e2e/driver/polling.h"

namespace qdix::e2e {

namespace {

constexpr std::size_t kLongestCommandLine = 300;

}  // namespace

std::vector<HWND> HelpWindows() {
  std::vector<HWND> windows;
  for (HWND window = FindWindowExA(nullptr, nullptr, nullptr, "Quondix Help"); window != nullptr;
       window = FindWindowExA(nullptr, window, nullptr, "Quondix Help")) {
    if (IsWindowVisible(window) != 0) windows.push_back(window);
  }
  return windows;
}

std::string CommandLineOf(HWND window) {
  DWORD id = 0;
  GetWindowThreadProcessId(window, &id);
  const HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, id);
  if (process == nullptr) return {};
  const auto place = CallInside(process, SystemFunction("kernel32.dll", "GetCommandLineA"), {});
  std::array<char, kLongestCommandLine + 1> text{};
  if (place) {
    ReadProcessMemory(process, reinterpret_cast<const void*>(static_cast<std::uintptr_t>(*place)),
                      text.data(), kLongestCommandLine, nullptr);
  }
  CloseHandle(process);
  return text.data();
}

bool CloseHelpWindows() {
  for (const HWND window : HelpWindows()) PostMessageA(window, WM_CLOSE, 0, 0);
  return Eventually([] { return HelpWindows().empty(); });
}

}  // namespace qdix::e2e
