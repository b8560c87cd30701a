// A window that is never shown, to ask the system about.
#pragma once

#include <windows.h>

#include "ui/win32/owned.h"

namespace qdix::self_test::win32 {

/// Makes a top-level window of a class, without a frame and without an owner.
[[nodiscard]] inline ui::win32::OwnedWindow HiddenWindow(const char* window_class) {
  constexpr int kSize = 20;
  return ui::win32::OwnedWindow(CreateWindowExA(0, window_class, "", WS_POPUP, 0, 0, kSize, kSize, nullptr,
                                                nullptr, GetModuleHandleA(nullptr), nullptr));
}

}  // namespace qdix::self_test::win32
