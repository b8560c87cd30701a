// Checks that the real system gives sensible answers to harmless requests of the programs.
#pragma once

#include <string>

#include "os/system.h"
#include "self_test/report.h"

namespace qdix::self_test {

/// Makes every request that changes nothing. `own_folder` is a folder for our own files, without a backslash
/// at the end; the file that is created there is deleted.
void RunReadingChecks(Report& report, const os::System& real, const std::string& own_folder);

}  // namespace qdix::self_test
