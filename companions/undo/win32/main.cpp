// The entry point of undo.exe: connects the program and the peers of its controls. Contains no logic.
#include <windows.h>

#include <memory>

#include "companion/win32/companion_program.h"
#include "runtime/entry.h"
#include "ui/win32/simple_peers.h"
#include "undo/undo_form.h"
#include "undo/win32/resources.h"

namespace qdix::undo::win32 {

namespace {

using Program = companion::win32::CompanionProgram<UndoForm>;

std::unique_ptr<ui::win32::NativeControl> MakeOwnPeer(const ui::win32::PeerContext& context,
                                                      ui::Control& model, HWND parent, int number) {
  using namespace ui::win32;
  switch (model.GetKind()) {
    case ui::Kind::kFrame:
      return MakePeerOf<FramePeer, ui::Frame>(context, model, parent, number);
    case ui::Kind::kLabel:
      return MakePeerOf<LabelPeer, ui::Label>(context, model, parent, number);
    case ui::Kind::kButton:
      return MakePeerOf<ButtonPeer, ui::Button>(context, model, parent, number);
    case ui::Kind::kCheckBox:
      return MakePeerOf<CheckBoxPeer, ui::CheckBox>(context, model, parent, number);
    default:
      return nullptr;
  }
}

}  // namespace

}  // namespace qdix::undo::win32

extern "C" int QdixMain(void* instance, int show_command) {
  namespace own = qdix::undo::win32;
  const auto program =
      std::make_unique<own::Program>(static_cast<HINSTANCE>(instance), own::kUndoIcon, &own::MakeOwnPeer);
  return program->Run(show_command) ? 0 : 1;
}
