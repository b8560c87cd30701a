// Makes processes start one after the other: two viewers that start at the same time would not find each
// other's window.
#pragma once

#include <windows.h>

namespace qdix::help_viewer::win32 {

/// Waits until no other process holds the turn of this name and holds it until destroyed. Gives up waiting
/// after the limit: a second viewer is better than none.
class Turn {
 public:
  explicit Turn(const char* name) : mutex_(CreateMutexA(nullptr, FALSE, name)) {
    WaitForSingleObject(mutex_, kLimitMs);
  }
  Turn(const Turn&) = delete;
  Turn& operator=(const Turn&) = delete;
  ~Turn() {
    ReleaseMutex(mutex_);
    CloseHandle(mutex_);
  }

 private:
  static constexpr DWORD kLimitMs = 10000;

  HANDLE mutex_;
};

}  // namespace qdix::help_viewer::win32
