// A fresh machine for each test, as far as the program can tell, and one copy of the program on it. What the
// registry held before all tests comes back after them.
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
  /// Kills what the test left running. A box that nobody expected, and what the screen showed when a test
  /// failed, are not lost.
  void TearDown() override;

  /// Starts the program and waits until its window is shown and its figures are read.
  void StartProgram() { StartCopy(program); }
  static void StartCopy(ShippedProgram& copy);

  /// Closes the program and sees it end by itself.
  void CloseProgram() { CloseCopy(program); }
  static void CloseCopy(const ShippedProgram& copy);

  /// The program ends by itself within the deadline, with exit code 0, and its icon is gone in that moment.
  static void ExpectCleanEnd(const ShippedProgram& copy);

  /// This machine has had the program before: no first run.
  static void MarkMachineAsKnown() { SetRegistryText(kMachineKey, "HasRun", "1"); }

  ShippedProgram program;
};

}  // namespace qdix::e2e
