// What the driver must know about each shipped program.
#pragma once

#include <string>

#include "tests/e2e/driver/screen_map.h"

namespace qdix::e2e {

struct ProgramFacts {
  const char* file_name;
  /// Title of the application; its hidden window carries it.
  const char* title;
  ScreenMap map;
};

[[nodiscard]] ProgramFacts Qdix();
[[nodiscard]] ProgramFacts Undo();
[[nodiscard]] ProgramFacts ConfigLauncher();
[[nodiscard]] ProgramFacts HelpViewer();

/// Paths of the program that reports how it was started, and of the report, which it writes next to itself.
/// The environment variable QDIX_WITNESS_PROGRAM (a path of the host) names another copy of the program.
[[nodiscard]] std::string WitnessPath();
[[nodiscard]] std::string WitnessReportPath();

/// Returns the Windows path of a program under test: in the folder of the QDIX.exe that the environment
/// variable QDIX_PROGRAM names (a path of the host), otherwise in the output folder of the preset win9x.
[[nodiscard]] std::string ProgramPath(const std::string& file_name);

}  // namespace qdix::e2e
