// What a reader of the log has to know of the machine.
#pragma once

#include "os/system.h"
#include "self_test/report.h"

namespace qdix::self_test::win32 {

/// Writes a line for each: date, Windows, memory, processor, display.
void WriteMachineFacts(Report& report, const os::System& real);

}  // namespace qdix::self_test::win32
