// Hooks one object into the messages of one window. The hook's address is in the window's user data, so no
// table of windows is needed.
#pragma once

#include <windows.h>

namespace qdix::ui::win32 {

class MessageHandler {
 public:
  /// Handles a message of the hooked window, or passes it on with Subclass::Default.
  virtual LRESULT HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) = 0;

 protected:
  ~MessageHandler() = default;
};

class Subclass {
 public:
  /// Hooks nothing if `window` is null.
  Subclass(HWND window, MessageHandler& handler);
  Subclass(const Subclass&) = delete;
  Subclass& operator=(const Subclass&) = delete;
  ~Subclass() { Remove(); }

  [[nodiscard]] HWND Window() const { return window_; }
  /// Calls the window procedure that the hook replaced.
  LRESULT Default(UINT message, WPARAM wparam, LPARAM lparam);

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  void Remove();

  HWND window_;
  MessageHandler& handler_;
  WNDPROC former_ = nullptr;
};

}  // namespace qdix::ui::win32
