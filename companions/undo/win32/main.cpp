// The entry point of undo.exe: connects the program and the peers of its controls. Contains no logic.

#include "host/win32/program_host.h"
#include "os/win32/interactive_machine.h"
#include "os/win32/win32_clock.h"
#include "os/win32/win32_files.h"
#include "os/win32/win32_profile_files.h"
#include "os/win32/win32_registry.h"
#include "os/win32/win32_session.h"
#include "runtime/entry.h"
#include "ui/win32/simple_peers.h"
#include "undo/undo_form.h"
#include "undo/win32/resources.h"

namespace {

using namespace qdix::ui::win32;
using namespace qdix::os::win32;

/// What `UndoSystem` is made from.
struct Machine : InteractiveMachine {
  Win32Registry registry;
  Win32Clock clock;
  Win32Files files;
  Win32ProfileFiles profile_files;
  Win32Session session;
};

constexpr PeerFactory kMakePeer = &MakePeerFrom<FramePeer, LabelPeer, ButtonPeer, CheckBoxPeer>;

}  // namespace

extern "C" int QdixMain(void* instance, int show_command) {
  using Program = qdix::host::win32::ProgramHost<qdix::undo::UndoForm, Machine>;
  auto* const program =
      new Program(static_cast<HINSTANCE>(instance), qdix::undo::win32::kUndoIcon, kMakePeer);
  return program->Run(show_command);
}
