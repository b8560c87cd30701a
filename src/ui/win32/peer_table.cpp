#include "ui/win32/peer_table.h"

#include "ui/control_numbers.h"

namespace qdix::ui::win32 {

void PeerTable::Put(int number, std::unique_ptr<NativeControl> peer) {
  const auto index = static_cast<std::size_t>(number - kFirstControlNumber);
  if (index >= peers_.size()) peers_.resize(index + 1);
  peers_[index] = std::move(peer);
}

NativeControl* PeerTable::ByNumber(int number) const {
  const int index = number - kFirstControlNumber;
  if (index < 0 || index >= static_cast<int>(peers_.size())) return nullptr;
  return peers_[static_cast<std::size_t>(index)].get();
}

NativeControl* PeerTable::ByWindow(HWND window) const {
  NativeControl* const peer = ByNumber(GetDlgCtrlID(window));
  return peer != nullptr && peer->Window() == window ? peer : nullptr;
}

NativeControl* PeerTable::ByModel(const Control& model) const {
  for (const std::unique_ptr<NativeControl>& peer : peers_) {
    if (peer != nullptr && &peer->Model() == &model) return peer.get();
  }
  return nullptr;
}

}  // namespace qdix::ui::win32
