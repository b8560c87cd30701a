// The one class that GoogleTest wants from the thread library, for a compiler whose thread model has none.
#pragma once

#ifdef __cplusplus
// The printer functions, which the short form leaves out, would rename methods of ours.
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
