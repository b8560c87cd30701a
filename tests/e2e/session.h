// Gives each test a fresh machine, as far as the program can tell, and one copy of the program. The previous
// contents of the registry are restored after all tests.
#pragma once

#include <gtest/gtest.h>

#include "tests/e2e/driver/native_windows.h"
#include "tests/e2e/driver/photograph.h"
#include "tests/e2e/driver/registry.h"
#include "tests/e2e/driver/shipped_program.h"

namespace qdix::e2e {

class Session : public testing::Test {
 protected:
  void SetUp() override;
  /// Kills what the test left running. Reports unexpected boxes, and photographs the screen of a failed test.
  void TearDown() override;

  /// Starts the program and waits until its window is shown and its figures are read.
  void StartProgram() { StartCopy(program); }
  static void StartCopy(ShippedProgram& copy);

  /// Closes the program and expects it to end by itself.
  void CloseProgram() { CloseCopy(program); }
  static void CloseCopy(const ShippedProgram& copy);

  /// Expects the program to end by itself within the deadline, with exit code 0 and its icon gone at that
  /// moment.
  static void ExpectCleanEnd(const ShippedProgram& copy);

  /// Marks the machine as one that has run the program before: no first run.
  static void MarkMachineAsKnown() { SetRegistryText(kMachineKey, "HasRun", "1"); }

  ShippedProgram program;
};

}  // namespace qdix::e2e
