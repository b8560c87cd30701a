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
  switch (model.GetKind()) {
    case Kind::kForm:
    case Kind::kOwn:
      return nullptr;
    case Kind::kTabStrip:
      return MakePeerOf<TabStripPeer, TabStrip>(context, model, parent, number);
    case Kind::kTabPage:
      return MakePeerOf<TabPagePeer, TabPage>(context, model, parent, number);
    case Kind::kFrame:
      return MakePeerOf<FramePeer, Frame>(context, model, parent, number);
    case Kind::kLabel:
      return MakePeerOf<LabelPeer, Label>(context, model, parent, number);
    case Kind::kButton:
      if (static_cast<Button&>(model).PictureId() != 0) {
        return MakePeerOf<PictureButtonPeer, Button>(context, model, parent, number);
      }
      return MakePeerOf<ButtonPeer, Button>(context, model, parent, number);
    case Kind::kCheckBox:
      return MakePeerOf<CheckBoxPeer, CheckBox>(context, model, parent, number);
    case Kind::kOptionButton:
      return MakePeerOf<OptionButtonPeer, OptionButton>(context, model, parent, number);
    case Kind::kTextBox:
      return MakePeerOf<TextBoxPeer, TextBox>(context, model, parent, number);
    case Kind::kListBox:
      return MakePeerOf<ListBoxPeer, ListBox>(context, model, parent, number);
    case Kind::kDropDownList:
      return MakePeerOf<DropDownListPeer, DropDownList>(context, model, parent, number);
    case Kind::kDropDownCombo:
      return MakePeerOf<DropDownComboPeer, DropDownCombo>(context, model, parent, number);
    case Kind::kVerticalScrollBar:
      return MakePeerOf<ScrollBarPeer, VerticalScrollBar>(context, model, parent, number);
    case Kind::kSlider:
      return MakePeerOf<SliderPeer, Slider>(context, model, parent, number);
    case Kind::kDrawing:
      return MakePeerOf<DrawingPeer, DrawingControl>(context, model, parent, number);
    case Kind::kPicture:
      return MakePeerOf<PicturePeer, Picture>(context, model, parent, number);
  }
  return nullptr;
}

}  // namespace qdix::ui::win32
