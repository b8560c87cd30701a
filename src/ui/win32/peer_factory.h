// Makes the peer that mirrors a control of each kind.
#pragma once

#include <memory>

#include "ui/win32/native_control.h"

namespace qdix::ui::win32 {

/// `parent` is the window that the control stands on: that of its tab page, or the main window. Null for a
/// form, whose window is made by FormWindow.
[[nodiscard]] std::unique_ptr<NativeControl> MakePeer(const PeerContext& context, Control& model, HWND parent,
                                                      int number);

}  // namespace qdix::ui::win32
