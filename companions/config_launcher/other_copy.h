// Other programs of Q-DIX: the copy of this one that runs already (two would write over each other's lists),
// and Q-DIX itself.
#pragma once

#include <cstdint>

#include "os/system.h"
#include "ui/application.h"
#include "ui/form.h"

namespace qdix::config_launcher {

/// True where another copy had started before; its window is restored and brought to the front then. Where
/// that copy has no window any more it is about to end.
[[nodiscard]] bool BringOtherCopyForward(const os::System& system, ui::Application& application,
                                         ui::Form& form);

/// True for the thread that Q-DIX runs in, and for the thread 0, which is not known, while Q-DIX runs.
[[nodiscard]] bool MayBeThreadOfQdix(const os::System& system, std::uint32_t thread);

}  // namespace qdix::config_launcher
