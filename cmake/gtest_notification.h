// The one class that GoogleTest wants from the thread library, for a compiler whose thread model has none.
#pragma once

#ifdef __cplusplus
// clang-format off
#include <windows.h>
// clang-format on
#undef FindWindow
#undef GetClassName

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
