// Work inside of another process: a page of its memory, and calls that its own threads or one of ours make
// there.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace qdix::e2e {

/// Machine code, put together byte by byte.
class MachineCode {
 public:
  MachineCode& Bytes(const std::string& bytes);
  MachineCode& Number(std::uint32_t number);
  [[nodiscard]] const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

/// A page in another process that can be run, read and written; it stays when this object goes.
class ForeignPage {
 public:
  explicit ForeignPage(HANDLE process);

  /// Where a part of the page is, as a number in that process.
  [[nodiscard]] std::uint32_t At(std::uint32_t offset) const;
  [[nodiscard]] bool Write(std::uint32_t offset, const std::string& bytes) const;
  [[nodiscard]] std::string ReadText(std::uint32_t offset) const;
  void Free();

 private:
  HANDLE process_;
  char* begin_;
};

/// Address of a function of the system, which is the same in all processes.
[[nodiscard]] std::uint32_t SystemFunction(const char* library, const char* name);

/// Calls a function of the system in that process, on a thread of its own; nothing when it does not come
/// back. Only for a process that nobody has asked to end: a thread that starts while the process ends can
/// keep a lock of it for ever.
[[nodiscard]] std::optional<std::uint32_t> CallInside(HANDLE process, std::uint32_t function,
                                                      const std::vector<std::uint32_t>& arguments);

}  // namespace qdix::e2e
