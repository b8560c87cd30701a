// Checks the error mode of the process during a system call and afterwards.
#pragma once

#include "tests/contract/win32/win32_contract_machine.h"

namespace qdix::contract {

class ErrorModeTest : public ContractTest {
 public:
  /// Call this from the function that replaces a system function.
  static void RecordMode() {
    ModeSeen() = SetErrorMode(0);
    SetErrorMode(ModeSeen());
  }

 protected:
  static constexpr UINT kModeBefore = SEM_NOGPFAULTERRORBOX;

  ErrorModeTest() : former_(SetErrorMode(kModeBefore)) { ModeSeen() = 0; }
  ~ErrorModeTest() override { SetErrorMode(former_); }

  /// The error mode during the latest redirected call.
  static UINT& ModeSeen() {
    static UINT mode = 0;
    return mode;
  }

  static void ExpectAskedQuietlyAndPutBack() {
    EXPECT_EQ(ModeSeen(), static_cast<UINT>(SEM_FAILCRITICALERRORS));
    EXPECT_EQ(SetErrorMode(kModeBefore), kModeBefore) << "started programs inherit the mode";
  }

 private:
  UINT former_;
};

}  // namespace qdix::contract
