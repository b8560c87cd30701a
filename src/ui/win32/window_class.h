// A window class of the program. Registered and unregistered by one object, which must outlive the windows of
// the class.
#pragma once

#include <windows.h>

namespace qdix::ui::win32 {

inline constexpr const char* kMainWindowClass = "QDIXMain";
/// Other copies and companions of the program find the hidden application window by this name.
inline constexpr const char* kApplicationWindowClass = "ThunderRT6Main";
inline constexpr const char* kPageWindowClass = "QDIXPage";
inline constexpr const char* kDrawingWindowClass = "QDIXDrawing";

class WindowClass {
 public:
  struct Looks {
    HBRUSH background = nullptr;
    HICON icon = nullptr;
    UINT style = 0;
  };

  /// Windows of the class have the default behaviour; a Subclass gives each its own.
  WindowClass(HINSTANCE instance, const char* name, const Looks& looks);
  WindowClass(const WindowClass&) = delete;
  WindowClass& operator=(const WindowClass&) = delete;
  ~WindowClass();

 private:
  HINSTANCE instance_;
  const char* name_;
};

/// Returns the background brush value for the face of three-dimensional controls.
[[nodiscard]] HBRUSH FaceBackground();

}  // namespace qdix::ui::win32
