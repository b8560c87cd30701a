// Makes the peer that mirrors a control. Each program has a factory of the kinds of control that it has,
// since what no factory names does not get into the exe.
#pragma once

#include <memory>

#include "ui/win32/native_control.h"

namespace qdix::ui::win32 {

/// `parent` is the window that the control stands on: that of its tab page, or the main window. Null for a
/// kind that the program does not have, and for a form, whose window is made by FormWindow.
using PeerFactory = std::unique_ptr<NativeControl> (*)(const PeerContext& context, Control& model,
                                                       HWND parent, int number);

/// The peer of one kind; the model is one.
template <class Peer, class Model>
[[nodiscard]] std::unique_ptr<NativeControl> MakePeerOf(const PeerContext& context, Control& model,
                                                        HWND parent, int number) {
  return std::make_unique<Peer>(context, static_cast<Model&>(model), parent, number);
}

/// The factory of all kinds that more than one program has.
[[nodiscard]] std::unique_ptr<NativeControl> MakePeer(const PeerContext& context, Control& model, HWND parent,
                                                      int number);

}  // namespace qdix::ui::win32
