// Everything that the main program asks of the machine, by subject; a companion uses only some of it. Only
// references: the creator must keep the implementations alive as long as the program runs.
#pragma once

#include "os/clock.h"
#include "os/dialogs.h"
#include "os/drives.h"
#include "os/event_pump.h"
#include "os/files.h"
#include "os/memory.h"
#include "os/processes.h"
#include "os/processor.h"
#include "os/profile_files.h"
#include "os/registry.h"
#include "os/session.h"
#include "os/shell.h"
#include "os/shell_files.h"
#include "os/top_level_windows.h"

namespace qdix::os {

struct System {
  Memory& memory;
  Registry& registry;
  EventPump& event_pump;
  Windows& windows;
  Dialogs& dialogs;
  Clock& clock;
  Processes& processes;
  Shell& shell;
  ShellFiles& shell_files;
  Processor& processor;
  Files& files;
  ProfileFiles& profile_files;
  Drives& drives;
  Session& session;
};

}  // namespace qdix::os
