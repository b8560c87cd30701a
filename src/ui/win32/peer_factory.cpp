#include "ui/win32/peer_factory.h"

#include "ui/win32/drawing_peer.h"
#include "ui/win32/list_peers.h"
#include "ui/win32/range_peers.h"
#include "ui/win32/simple_peers.h"
#include "ui/win32/tab_strip_peer.h"
#include "ui/win32/text_box_peer.h"

namespace qdix::ui::win32 {

namespace {

template <class Peer, class Model>
std::unique_ptr<NativeControl> Make(const PeerContext& context, Control& model, HWND parent, int number) {
  return std::make_unique<Peer>(context, static_cast<Model&>(model), parent, number);
}

}  // namespace

std::unique_ptr<NativeControl> MakePeer(const PeerContext& context, Control& model, HWND parent, int number) {
  switch (model.GetKind()) {
    case Kind::kForm:
      return nullptr;
    case Kind::kTabStrip:
      return Make<TabStripPeer, TabStrip>(context, model, parent, number);
    case Kind::kTabPage:
      return Make<TabPagePeer, TabPage>(context, model, parent, number);
    case Kind::kFrame:
      return Make<FramePeer, Frame>(context, model, parent, number);
    case Kind::kLabel:
      return Make<LabelPeer, Label>(context, model, parent, number);
    case Kind::kButton:
      return Make<ButtonPeer, Button>(context, model, parent, number);
    case Kind::kCheckBox:
      return Make<CheckBoxPeer, CheckBox>(context, model, parent, number);
    case Kind::kOptionButton:
      return Make<OptionButtonPeer, OptionButton>(context, model, parent, number);
    case Kind::kTextBox:
      return Make<TextBoxPeer, TextBox>(context, model, parent, number);
    case Kind::kListBox:
      return Make<ListBoxPeer, ListBox>(context, model, parent, number);
    case Kind::kDropDownList:
      return Make<DropDownListPeer, DropDownList>(context, model, parent, number);
    case Kind::kDropDownCombo:
      return Make<DropDownComboPeer, DropDownCombo>(context, model, parent, number);
    case Kind::kVerticalScrollBar:
      return Make<ScrollBarPeer, VerticalScrollBar>(context, model, parent, number);
    case Kind::kSlider:
      return Make<SliderPeer, Slider>(context, model, parent, number);
    case Kind::kDrawing:
      return Make<DrawingPeer, DrawingControl>(context, model, parent, number);
    case Kind::kPicture:
      return Make<PicturePeer, Picture>(context, model, parent, number);
  }
  return nullptr;
}

}  // namespace qdix::ui::win32
