#include "ui/win32/window_class.h"

namespace qdix::ui::win32 {

WindowClass::WindowClass(HINSTANCE instance, const char* name, const Looks& looks)
    : instance_(instance), name_(name) {
  WNDCLASSA description{};
  description.style = looks.style;
  description.lpfnWndProc = DefWindowProcA;
  description.hInstance = instance_;
  description.hIcon = looks.icon;
  description.hCursor = LoadCursorA(nullptr, MAKEINTRESOURCEA(32512));  // the arrow
  description.hbrBackground = looks.background;
  description.lpszClassName = name_;
  // A failure shows when the first window of the class is made.
  RegisterClassA(&description);
}

WindowClass::~WindowClass() { UnregisterClassA(name_, instance_); }

HBRUSH FaceBackground() { return reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_3DFACE + 1)); }

}  // namespace qdix::ui::win32
