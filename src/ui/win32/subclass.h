// The hook of one object into one window's messages: installed and removed by one object. The window finds
// the hook in its own user word, so there is no table of windows.
#pragma once

#include <windows.h>

namespace qdix::ui::win32 {

class MessageHandler {
 public:
  virtual ~MessageHandler() = default;
  /// Answers a message of the hooked window, or passes it on with Subclass::Default.
  virtual LRESULT HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) = 0;
};

class Subclass {
 public:
  /// Hooks nothing where `window` is null.
  Subclass(HWND window, MessageHandler& handler);
  Subclass(const Subclass&) = delete;
  Subclass& operator=(const Subclass&) = delete;
  ~Subclass() { Remove(); }

  [[nodiscard]] HWND Window() const { return window_; }
  /// What the window does without the hook.
  LRESULT Default(UINT message, WPARAM wparam, LPARAM lparam);

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  void Remove();

  HWND window_;
  MessageHandler& handler_;
  WNDPROC former_ = nullptr;
};

}  // namespace qdix::ui::win32
