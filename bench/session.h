// The shipped QDIX.exe on a machine that has had it before, ready to be measured.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

#include "tests/e2e/driver/registry.h"
#include "tests/e2e/driver/shipped_program.h"

namespace qdix::bench {

/// A measurement that could not be made must not look like one: ends the bench with the reason.
inline void Require(bool happened, const std::string& what) {
  if (happened) return;
  std::fprintf(stderr, "bench: %s\n", what.c_str());
  std::exit(1);
}

/// Default settings, and no first start.
inline void MakeMachineKnown() {
  e2e::ProgramRegistry::Clear();
  e2e::SetRegistryText(e2e::kMachineKey, "HasRun", "1");
}

/// Starts it and waits until its figures are read.
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
