// Compares the windows on the screen with the models that they mirror.
#pragma once

#include <windows.h>

#include <string>

#include "self_test/outcome.h"
#include "ui/form.h"

namespace qdix::self_test::win32 {

/// The native window of a control; null where there is none.
[[nodiscard]] HWND WindowOf(HWND main, const ui::Form& form, const ui::Control& control);

/// Every control has a window, which is shown as the model says, carries its caption, and lies inside of the
/// window that it stands on. Those of a page that is not open may have none: they are made when it is opened.
/// `main` is the window of the form. Tells how many windows it saw.
[[nodiscard]] Outcome WalkWindows(HWND main, ui::Form& form);

}  // namespace qdix::self_test::win32
