// Works inside another process: owns a page of its memory, and makes calls there on the process's own threads
// or on one of ours.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace qdix::e2e {

/// Machine code, assembled byte by byte.
class MachineCode {
 public:
  MachineCode& Bytes(const std::string& bytes);
  MachineCode& Number(std::uint32_t number);
  [[nodiscard]] const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

/// A page in another process that can be executed, read and written. It outlives this object.
class ForeignPage {
 public:
  explicit ForeignPage(HANDLE process);

  /// Returns the address, in that process, of a part of the page.
  [[nodiscard]] std::uint32_t At(std::uint32_t offset) const;
  [[nodiscard]] bool Write(std::uint32_t offset, const std::string& bytes) const;
  [[nodiscard]] std::string ReadText(std::uint32_t offset) const;
  void Free();

 private:
  HANDLE process_;
  char* begin_;
};

/// Overwrites code or data in that process, whatever its protection, and restores the protection.
[[nodiscard]] bool Overwrite(HANDLE process, std::uintptr_t address, const std::string& bytes);

/// Returns the address of a system function, which is the same in all processes.
[[nodiscard]] std::uint32_t SystemFunction(const char* library, const char* name);

/// Calls a system function in that process, on a new thread; returns nothing if the call does not return.
/// Only for a process that has not been asked to end: a thread that starts while the process ends can hold
/// one of its locks for ever.
[[nodiscard]] std::optional<std::uint32_t> CallInside(HANDLE process, std::uint32_t function,
                                                      const std::vector<std::uint32_t>& arguments);

}  // namespace qdix::e2e
