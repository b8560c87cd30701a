// Prevents the system from asking for a disk while the program accesses a drive that may be empty.
#pragma once

#include <windows.h>

namespace qdix::os::win32 {

/// Keep it for a single query: programs started while it exists inherit the mode.
class NoDiskRequest {
 public:
  NoDiskRequest() : former_(SetErrorMode(SEM_FAILCRITICALERRORS)) {}
  NoDiskRequest(const NoDiskRequest&) = delete;
  NoDiskRequest& operator=(const NoDiskRequest&) = delete;
  ~NoDiskRequest() { SetErrorMode(former_); }

 private:
  UINT former_;
};

}  // namespace qdix::os::win32
