#include "fake_clock.h"

// clang-format off
#include <windows.h>
// clang-format on

#include <array>

#include "tests/e2e/driver/import_redirect.h"
#include "tests/e2e/driver/inside_process.h"
#include "tests/e2e/driver/polling.h"

namespace qdix::probe {

namespace {

/// Default load address of a program.
constexpr std::uintptr_t kProgramBegin = 0x400000;
/// A jump to itself.
constexpr const char* kWaitHere = "\xEB\xFE";

template <class Value>
bool Read(HANDLE process, std::uintptr_t address, Value& value) {
  return ReadProcessMemory(process, reinterpret_cast<void*>(address), &value, sizeof value, nullptr) != 0;
}

/// Returns the address of the program's first instruction; 0 if its image cannot be read.
std::uintptr_t EntryPoint(HANDLE process) {
  IMAGE_DOS_HEADER start = {};
  IMAGE_NT_HEADERS32 headers = {};
  if (!Read(process, kProgramBegin, start)) return 0;
  if (!Read(process, kProgramBegin + static_cast<std::uint32_t>(start.e_lfanew), headers)) return 0;
  return kProgramBegin + headers.OptionalHeader.AddressOfEntryPoint;
}

/// Returns code that does the work of QueryPerformanceFrequency with this answer.
std::string AnswerFrequency(std::uint32_t ticks_per_second) {
  e2e::MachineCode code;
  code.Bytes("\x8B\x4C\x24\x04");                                      // mov ecx, [esp + 4]
  code.Bytes("\xC7\x01").Number(ticks_per_second);                     // mov [ecx], the low half
  code.Bytes("\xC7\x41\x04").Number(0);                                // mov [ecx + 4], the high half
  code.Bytes("\xB8").Number(1).Bytes(std::string("\xC2\x04\x00", 3));  // mov eax, 1; ret 4
  return code.Text();
}

/// The imports of a suspended program cannot be found before its libraries are loaded, so the program waits
/// at its entry until the clock is redirected.
bool RedirectClock(const PROCESS_INFORMATION& started, int percent) {
  LARGE_INTEGER frequency = {};
  QueryPerformanceFrequency(&frequency);
  const std::uintptr_t entry = EntryPoint(started.hProcess);
  const e2e::ForeignPage page(started.hProcess);
  const auto ticks_per_second = static_cast<std::uint32_t>(frequency.QuadPart * percent / 100);
  std::array<char, 2> first_bytes{};
  if (entry == 0 || !Read(started.hProcess, entry, first_bytes) ||
      !page.Write(0, AnswerFrequency(ticks_per_second)) ||
      !e2e::Overwrite(started.hProcess, entry, kWaitHere)) {
    return false;
  }
  ResumeThread(started.hThread);
  const std::uint32_t asked = e2e::SystemFunction("kernel32.dll", "QueryPerformanceFrequency");
  const bool is_redirected =
      e2e::Eventually([&] { return e2e::RedirectImport(started.hProcess, asked, page.At(0)); });
  return e2e::Overwrite(started.hProcess, entry, {first_bytes.data(), first_bytes.size()}) && is_redirected;
}

}  // namespace

bool StartWithClock(const std::string& path, int percent) {
  STARTUPINFOA startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started = {};
  std::string command_line = path;
  if (CreateProcessA(nullptr, command_line.data(), nullptr, nullptr, FALSE, CREATE_SUSPENDED, nullptr,
                     nullptr, &startup, &started) == 0) {
    return false;
  }
  const bool is_redirected = RedirectClock(started, percent);
  if (!is_redirected) TerminateProcess(started.hProcess, 1);
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
  return is_redirected;
}

}  // namespace qdix::probe
