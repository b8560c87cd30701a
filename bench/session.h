// Starts and ends the shipped QDIX.exe on a machine where it has run before.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

#include "tests/e2e/driver/registry.h"
#include "tests/e2e/driver/shipped_program.h"

namespace qdix::bench {

/// Ends the bench and prints the reason if a step failed: a failed measurement must not look like a result.
inline void Require(bool happened, const std::string& what) {
  if (happened) return;
  std::fprintf(stderr, "bench: %s\n", what.c_str());
  std::exit(1);
}

/// Restores the default settings and marks the first start as done.
inline void MakeMachineKnown() {
  e2e::ProgramRegistry::Clear();
  e2e::SetRegistryText(e2e::kMachineKey, "HasRun", "1");
}

/// Starts the program and waits until it shows its first figures.
inline void StartAndSettle(e2e::ShippedProgram& program) {
  MakeMachineKnown();
  Require(program.Start(), "QDIX.exe does not start");
  Require(program.WaitForWindow() && program.WaitForFirstReading(), "QDIX.exe shows no figures");
}

inline void CloseAndWait(const e2e::ShippedProgram& program) {
  program.Close();
  Require(program.WaitForExit() == 0, "QDIX.exe does not end");
}

}  // namespace qdix::bench
