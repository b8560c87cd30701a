// The parts of the machine that undo.exe uses.
#pragma once

#include "os/clock.h"
#include "os/dialogs.h"
#include "os/files.h"
#include "os/profile_files.h"
#include "os/registry.h"
#include "os/session.h"

namespace qdix::undo {

/// Made from anything that has these parts: the whole system or only what the program brings. They must
/// outlive this object.
struct UndoSystem {
  template <class Wider>
  UndoSystem(Wider& wider)
      : registry(wider.registry),
        dialogs(wider.dialogs),
        clock(wider.clock),
        files(wider.files),
        profile_files(wider.profile_files),
        session(wider.session) {}

  os::Registry& registry;
  os::Dialogs& dialogs;
  os::Clock& clock;
  os::Files& files;
  os::ProfileFiles& profile_files;
  os::Session& session;
};

}  // namespace qdix::undo
