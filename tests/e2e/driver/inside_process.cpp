#include "tests/e2e/driver/inside_process.h"

#include <array>

#include "tests/e2e/driver/polling.h"

namespace qdix::e2e {

namespace {

constexpr std::size_t kPageBytes = 4096;
constexpr std::size_t kMaxTextLength = 256;

}  // namespace

MachineCode& MachineCode::Bytes(const std::string& bytes) {
  text_ += bytes;
  return *this;
}

MachineCode& MachineCode::Number(std::uint32_t number) {
  for (int shift = 0; shift < 32; shift += 8) text_ += static_cast<char>(number >> shift & 0xFF);
  return *this;
}

ForeignPage::ForeignPage(HANDLE process)
    : process_(process),
      begin_(static_cast<char*>(
          VirtualAllocEx(process, nullptr, kPageBytes, MEM_COMMIT | MEM_RESERVE, PAGE_EXECUTE_READWRITE))) {}

std::uint32_t ForeignPage::At(std::uint32_t offset) const {
  return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(begin_)) + offset;
}

bool ForeignPage::Write(std::uint32_t offset, const std::string& bytes) const {
  return begin_ != nullptr &&
         WriteProcessMemory(process_, begin_ + offset, bytes.data(), bytes.size(), nullptr) != 0;
}

std::string ForeignPage::ReadText(std::uint32_t offset) const {
  std::array<char, kMaxTextLength + 1> text{};
  ReadProcessMemory(process_, begin_ + offset, text.data(), kMaxTextLength, nullptr);
  return text.data();
}

void ForeignPage::Free() {
  VirtualFreeEx(process_, begin_, 0, MEM_RELEASE);
  begin_ = nullptr;
}

bool Overwrite(HANDLE process, std::uintptr_t address, const std::string& bytes) {
  auto* const place = reinterpret_cast<void*>(address);
  DWORD protection = 0;
  if (VirtualProtectEx(process, place, bytes.size(), PAGE_EXECUTE_READWRITE, &protection) == 0) return false;
  const bool is_written = WriteProcessMemory(process, place, bytes.data(), bytes.size(), nullptr) != 0;
  return VirtualProtectEx(process, place, bytes.size(), protection, &protection) != 0 && is_written;
}

std::uint32_t SystemFunction(const char* library, const char* name) {
  const FARPROC function = GetProcAddress(GetModuleHandleA(library), name);
  return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(function));
}

std::optional<std::uint32_t> CallInside(HANDLE process, std::uint32_t function,
                                        const std::vector<std::uint32_t>& arguments) {
  if (WaitForSingleObject(process, 0) != WAIT_TIMEOUT) return std::nullopt;
  MachineCode code;
  for (auto argument = arguments.rbegin(); argument != arguments.rend(); ++argument) {
    code.Bytes("\x68").Number(*argument);  // push
  }
  code.Bytes("\xB8").Number(function).Bytes("\xFF\xD0");  // mov eax; call eax
  code.Bytes({'\xC2', 4, 0});                             // ret 4
  ForeignPage page(process);
  if (!page.Write(0, code.Text())) return std::nullopt;
  // Converts the address of code, which is at hand only as the address of data.
  const auto begin = reinterpret_cast<LPTHREAD_START_ROUTINE>(static_cast<std::uintptr_t>(page.At(0)));
  const HANDLE thread = CreateRemoteThread(process, nullptr, 0, begin, nullptr, 0, nullptr);
  if (thread == nullptr) return std::nullopt;
  const bool came_back = WaitForSingleObject(thread, kDeadlineMs) == WAIT_OBJECT_0;
  DWORD answer = 0;
  GetExitCodeThread(thread, &answer);
  CloseHandle(thread);
  if (!came_back) return std::nullopt;
  page.Free();
  return answer;
}

}  // namespace qdix::e2e
