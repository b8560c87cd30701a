// Prevents the system from asking for a disk while the program accesses a drive that may be empty.
#pragma once

#include <windows.h>

namespace qdix::os::win32 {

/// Keep it for a single query: programs started while it exists inherit the mode.
class SuppressedDiskErrors {
 public:
  SuppressedDiskErrors() : former_(SetErrorMode(SEM_FAILCRITICALERRORS)) {}
  SuppressedDiskErrors(const SuppressedDiskErrors&) = delete;
  SuppressedDiskErrors& operator=(const SuppressedDiskErrors&) = delete;
  ~SuppressedDiskErrors() { SetErrorMode(former_); }

 private:
  UINT former_;
};

}  // namespace qdix::os::win32
