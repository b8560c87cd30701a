// Compares the windows on the screen with their models.
#pragma once

#include <windows.h>

#include <string>

#include "self_test/outcome.h"
#include "ui/form.h"

namespace qdix::self_test::win32 {

/// Returns the native window of a control, or null if there is none.
[[nodiscard]] HWND WindowOf(HWND main, const ui::Form& form, const ui::Control& control);

/// Checks that every control has a window, is shown or hidden as its model says, has its caption and lies
/// inside its parent window. Controls on a page that is not open may have no window: it is made when the page
/// is opened. `main` is the window of the form. The outcome gives the number of windows.
[[nodiscard]] Outcome WalkWindows(HWND main, ui::Form& form);

}  // namespace qdix::self_test::win32
