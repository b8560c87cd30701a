// Checks that the real system answers the harmless questions of the programs, and sensibly.
#pragma once

#include <string>

#include "os/system.h"
#include "self_test/report.h"

namespace qdix::self_test {

/// Asks everything that changes nothing. `own_folder` is one for files of our own, without a backslash at its
/// end; the one that is made there is deleted.
void RunReadingChecks(Report& report, const os::System& real, const std::string& own_folder);

}  // namespace qdix::self_test
