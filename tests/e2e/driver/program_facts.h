// What the driver has to know of each shipped program.
#pragma once

#include <string>

#include "tests/e2e/driver/screen_map.h"

namespace qdix::e2e {

struct ProgramFacts {
  const char* file_name;
  /// Title of the application, carried by its hidden window.
  const char* title;
  ScreenMap map;
};

[[nodiscard]] ProgramFacts Qdix();
[[nodiscard]] ProgramFacts Undo();
[[nodiscard]] ProgramFacts ConfigLauncher();
[[nodiscard]] ProgramFacts HelpViewer();

/// Path of the program that writes down how it was started, and of what it writes.
[[nodiscard]] std::string WitnessPath();
[[nodiscard]] std::string WitnessReportPath();

/// Path of a program under test, as Windows writes it: in the folder of the QDIX.exe that the environment
/// variable QDIX_PROGRAM names (a path of the host), else in the one that the preset win9x builds into.
[[nodiscard]] std::string ProgramPath(const std::string& file_name);

}  // namespace qdix::e2e
