#include "ui/win32/peer_factory.h"

#include "ui/win32/drawing_peer.h"
#include "ui/win32/list_peers.h"
#include "ui/win32/picture_button_peer.h"
#include "ui/win32/range_peers.h"
#include "ui/win32/simple_peers.h"
#include "ui/win32/tab_strip_peer.h"
#include "ui/win32/text_box_peer.h"

namespace qdix::ui::win32 {

std::unique_ptr<NativeControl> MakePeer(const PeerContext& context, Control& model, HWND parent, int number) {
  if (model.GetKind() == Kind::kButton && static_cast<Button&>(model).PictureId() != 0) {
    return MakePeerFrom<PictureButtonPeer>(context, model, parent, number);
  }
  return MakePeerFrom<TabStripPeer, TabPagePeer, FramePeer, LabelPeer, ButtonPeer, CheckBoxPeer,
                      OptionButtonPeer, TextBoxPeer, ListBoxPeer, DropDownListPeer, DropDownComboPeer,
                      ScrollBarPeer, SliderPeer, DrawingPeer, PicturePeer>(context, model, parent, number);
}

}  // namespace qdix::ui::win32
