// Makes the peer that mirrors a control. Each program has its own factory, which names only the kinds of
// control that the program uses: the linker leaves the others out of the exe.
#pragma once

#include <memory>

#include "ui/win32/native_control.h"

namespace qdix::ui::win32 {

/// `parent` is the window that holds the control: its tab page or the main window. Returns null for a kind
/// that the program does not have, and for a form, whose window FormWindow makes.
using PeerFactory = std::unique_ptr<NativeControl> (*)(const PeerContext& context, Control& model,
                                                       HWND parent, int number);

/// Makes a peer if the control is of its kind.
template <class Peer>
void MakeIfOfKind(std::unique_ptr<NativeControl>& peer, const PeerContext& context, Control& model,
                  HWND parent, int number) {
  if (model.GetKind() != Peer::kKind) return;
  peer = std::make_unique<Peer>(context, static_cast<typename Peer::ModelType&>(model), parent, number);
}

/// The factory of these kinds. Each peer names its kind of control (`kKind`) and its class (`ModelType`).
template <class... Peers>
[[nodiscard]] std::unique_ptr<NativeControl> MakePeerFrom(const PeerContext& context, Control& model,
                                                          HWND parent, int number) {
  std::unique_ptr<NativeControl> peer;
  (MakeIfOfKind<Peers>(peer, context, model, parent, number), ...);
  return peer;
}

/// The factory of all kinds that more than one program uses.
[[nodiscard]] std::unique_ptr<NativeControl> MakePeer(const PeerContext& context, Control& model, HWND parent,
                                                      int number);

}  // namespace qdix::ui::win32
