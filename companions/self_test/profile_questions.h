// Asks how the system stores the entries of INI files and returns the default for a missing one.
#pragma once

#include <string>

#include "os/files.h"
#include "os/profile_files.h"
#include "self_test/report.h"

namespace qdix::self_test {

/// Writes and reads ASK.INI in `own_folder`, a folder for our own files without a backslash at the end, and
/// deletes it.
void AskAboutProfileFiles(Report& report, os::ProfileFiles& profile_files, os::Files& files,
                          const std::string& own_folder);

}  // namespace qdix::self_test
