// Facts about the machine that a reader of the log needs.
#pragma once

#include "os/system.h"
#include "self_test/report.h"

namespace qdix::self_test::win32 {

/// Writes one line each for date, Windows, memory, page file, address space, processor and display.
void WriteMachineFacts(Report& report, const os::System& real);

}  // namespace qdix::self_test::win32
