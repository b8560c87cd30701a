// Keeps the system from asking the user for a disk while a drive is touched that may be empty.
#pragma once

#include <windows.h>

namespace qdix::os::win32 {

/// Only for the time of one question: programs started from here inherit the mode.
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
