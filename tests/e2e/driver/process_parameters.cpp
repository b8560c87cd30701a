#include "tests/e2e/driver/process_parameters.h"

#include <array>

namespace qdix::e2e {

namespace {

// Layout of 32-bit processes on the NT line, which Wine follows.
constexpr std::uint32_t kParametersInBlock = 0x10;
constexpr std::uint32_t kCommandLineInParameters = 0x40;

struct CountedText {
  std::uint16_t bytes;
  std::uint16_t room_bytes;
  std::uint32_t address;
};

template <typename Value>
bool Read(HANDLE process, std::uint32_t address, Value& value) {
  return address != 0 &&
         ReadProcessMemory(process, reinterpret_cast<const void*>(static_cast<std::uintptr_t>(address)),
                           &value, sizeof value, nullptr) != 0;
}

std::wstring ReadText(HANDLE process, const CountedText& text) {
  std::wstring characters(text.bytes / sizeof(wchar_t), L'\0');
  const auto* const place = reinterpret_cast<const void*>(static_cast<std::uintptr_t>(text.address));
  if (ReadProcessMemory(process, place, characters.data(), text.bytes, nullptr) == 0) return {};
  return characters;
}

std::string InAnsi(const std::wstring& text) {
  const int length = static_cast<int>(text.size());
  std::string bytes(text.size() * 2, '\0');
  const int count = WideCharToMultiByte(CP_ACP, 0, text.data(), length, bytes.data(),
                                        static_cast<int>(bytes.size()), nullptr, nullptr);
  bytes.resize(static_cast<std::size_t>(count));
  return bytes;
}

}  // namespace

std::uint32_t EnvironmentBlock(HANDLE process) {
  // Undocumented and not in the headers.
  using QueryProcess = LONG(WINAPI*)(HANDLE, int, void*, ULONG, ULONG*);
  constexpr int kBasicInformation = 0;
  constexpr std::size_t kBlockIndex = 1;
  const FARPROC found = GetProcAddress(GetModuleHandleA("ntdll.dll"), "NtQueryInformationProcess");
  const auto query = reinterpret_cast<QueryProcess>(reinterpret_cast<void*>(found));
  std::array<std::uint32_t, 6> basic{};
  if (query(process, kBasicInformation, basic.data(), sizeof basic, nullptr) != 0) return 0;
  return basic[kBlockIndex];
}

std::string CommandLineOf(HWND window) {
  DWORD id = 0;
  GetWindowThreadProcessId(window, &id);
  const HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, id);
  if (process == nullptr) return {};
  std::uint32_t parameters = 0;
  CountedText command_line{};
  std::wstring text;
  if (Read(process, EnvironmentBlock(process) + kParametersInBlock, parameters) &&
      Read(process, parameters + kCommandLineInParameters, command_line)) {
    text = ReadText(process, command_line);
  }
  CloseHandle(process);
  return InAnsi(text);
}

}  // namespace qdix::e2e
