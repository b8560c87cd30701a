// Replaces the one class of the thread library that GoogleTest needs, for a compiler whose thread model lacks it.
#pragma once

#ifdef __cplusplus
// Without this the headers' printer functions would rename methods of ours.
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

namespace testing::internal {

class Notification {
 public:
  Notification() : event_(CreateEventA(nullptr, TRUE, FALSE, nullptr)) {}
  Notification(const Notification&) = delete;
  Notification& operator=(const Notification&) = delete;
  ~Notification() { CloseHandle(event_); }
  void Notify() { SetEvent(event_); }
  void WaitForNotification() { WaitForSingleObject(event_, INFINITE); }

 private:
  HANDLE event_;
};

}  // namespace testing::internal
#endif
