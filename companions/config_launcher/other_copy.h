// One copy of the program at a time: two would write over each other's lists.
#pragma once

#include "os/system.h"
#include "ui/application.h"
#include "ui/form.h"

namespace qdix::config_launcher {

/// True where another copy had started before; its window is restored and brought to the front then. Where
/// that copy has no window any more it is about to end.
[[nodiscard]] bool BringOtherCopyForward(const os::System& system, ui::Application& application,
                                         ui::Form& form);

}  // namespace qdix::config_launcher
