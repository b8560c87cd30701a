// The frame and the size of a form's window. Copies between the window and the form.
#pragma once

#include <windows.h>

#include "ui/form.h"
#include "ui/win32/dialog_font.h"

namespace qdix::ui::win32 {

/// The application window owns the main window. Without this style the taskbar would show neither.
inline constexpr DWORD kMainExtendedStyle = WS_EX_APPWINDOW;

[[nodiscard]] DWORD MainStyleOf(const Form& form);

/// Returns the size in pixels of the form's window, frame included, for an inner size in dialog units.
[[nodiscard]] SIZE OuterSize(const Form& form, const DialogFont& font, FormSize inner);

/// Has no effect on a form whose size the user cannot change.
class FormBounds {
 public:
  /// All three must outlive this object.
  FormBounds(HWND main, Form& form, const DialogFont& font) : main_(main), form_(form), font_(font) {}

  /// Moves the window to the form's position and size without showing it.
  void Apply() const;
  /// Handlers of WM_WINDOWPOSCHANGED, WM_SIZE (`inner_size` is its lParam) and WM_GETMINMAXINFO.
  void Moved() const;
  void Resized(LPARAM inner_size) const;
  void Limit(MINMAXINFO& limits) const;

 private:
  HWND main_;
  Form& form_;
  const DialogFont& font_;
};

}  // namespace qdix::ui::win32
