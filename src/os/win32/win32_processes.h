// Implements `Processes` on Windows. Owns the mutexes that it creates and closes them in its destructor.
#pragma once

#include <windows.h>

#include <memory>
#include <vector>

#include "os/processes.h"

namespace qdix::os::win32 {

class Win32Processes final : public Processes {
 public:
  [[nodiscard]] bool MutexExistedBefore(const char* name) override;
  [[nodiscard]] std::string ModuleFileName() override;
  [[nodiscard]] std::int32_t CreateProcessA(const std::string& command_line) override;
  [[nodiscard]] bool SetCurrentDirectoryA(const std::string& folder) override;

 private:
  struct CloseOwnedHandle {
    void operator()(void* handle) const { CloseHandle(handle); }
  };
  using OwnedHandle = std::unique_ptr<void, CloseOwnedHandle>;

  std::vector<OwnedHandle> mutexes_;
};

}  // namespace qdix::os::win32
