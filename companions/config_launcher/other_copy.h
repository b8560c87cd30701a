// Finds other programs of Q-DIX: a running copy of this program (two copies would overwrite each other's
// lists) and Q-DIX itself.
#pragma once

#include <cstdint>

#include "config_launcher/config_system.h"
#include "ui/application.h"
#include "ui/form.h"

namespace qdix::config_launcher {

/// Returns true if another copy is running; restores its window and brings it to the front. If that copy no
/// longer has a window, it is about to end.
[[nodiscard]] bool BringOtherCopyForward(const ConfigSystem& system, ui::Application& application,
                                         ui::Form& form);

/// True if `thread` runs Q-DIX, or if `thread` is 0 (unknown) and Q-DIX is running.
[[nodiscard]] bool MayBeThreadOfQdix(const ConfigSystem& system, std::uint32_t thread);

}  // namespace qdix::config_launcher
