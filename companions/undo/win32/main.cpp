// The entry point of undo.exe: connects the program and the peers of its controls. Contains no logic.

#include "host/win32/program_host.h"
#include "runtime/entry.h"
#include "ui/win32/simple_peers.h"
#include "undo/undo_form.h"
#include "undo/win32/resources.h"

namespace {

using namespace qdix::ui::win32;

constexpr PeerFactory kMakePeer = &MakePeerFrom<FramePeer, LabelPeer, ButtonPeer, CheckBoxPeer>;

}  // namespace

extern "C" int QdixMain(void* instance, int show_command) {
  using Program = qdix::host::win32::ProgramHost<qdix::undo::UndoForm>;
  auto* const program =
      new Program(static_cast<HINSTANCE>(instance), qdix::undo::win32::kUndoIcon, kMakePeer);
  return program->Run(show_command);
}
