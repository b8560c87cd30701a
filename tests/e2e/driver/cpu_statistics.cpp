#include "tests/e2e/driver/cpu_statistics.h"

// clang-format off
#include <windows.h>
// clang-format on

#include <array>
#include <sstream>
#include <string>

namespace qdix::e2e {

namespace {

constexpr std::array<const char*, 2> kKeys{"PerfStats\\StartStat", "PerfStats\\StatData"};
constexpr DWORD kFirstLineRoom = 256;
constexpr const char* kLoadValue = "KERNEL\\CPUUsage";

}  // namespace

void SetCpuLoad(int percent) {
  const auto load = static_cast<DWORD>(percent);
  for (const char* path : kKeys) {
    HKEY key = nullptr;
    if (RegCreateKeyExA(HKEY_DYN_DATA, path, 0, nullptr, 0, KEY_SET_VALUE, nullptr, &key, nullptr) !=
        ERROR_SUCCESS) {
      continue;
    }
    RegSetValueExA(key, kLoadValue, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&load), sizeof load);
    RegCloseKey(key);
  }
}

void RemoveCpuStatistics() {
  for (const char* path : kKeys) RegDeleteKeyA(HKEY_DYN_DATA, path);
}

int HostLoad::Percent() {
  // The first line: "cpu", then the time spent in programs, in programs of low priority, in the system, idle
  // and so on.
  const HANDLE file = CreateFileA("Z:\\proc\\stat", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                  OPEN_EXISTING, 0, nullptr);
  std::string text(kFirstLineRoom, ' ');
  DWORD count = 0;
  ReadFile(file, text.data(), kFirstLineRoom, &count, nullptr);
  CloseHandle(file);
  std::istringstream line(text);
  std::string label;
  std::array<double, 8> times{};
  line >> label;
  for (double& time : times) line >> time;
  constexpr std::size_t kIdle = 3;
  constexpr std::size_t kWaiting = 4;
  double total = 0;
  for (const double time : times) total += time;
  const double busy = total - times[kIdle] - times[kWaiting];
  const bool is_first = total_ == 0;
  const double passed = total - total_;
  const double share = is_first || passed <= 0 ? 0 : (busy - busy_) / passed;
  busy_ = busy;
  total_ = total;
  return static_cast<int>(share * 100);
}

}  // namespace qdix::e2e
