// The error mode of the process while the system is asked, and afterwards.
#pragma once

#include "tests/contract/win32/win32_contract_machine.h"

namespace qdix::contract {

class ErrorModeTest : public ContractTest {
 public:
  /// To be called by a function that stands in for one of the system's.
  static void NoteMode() {
    ModeSeen() = SetErrorMode(0);
    SetErrorMode(ModeSeen());
  }

 protected:
  static constexpr UINT kModeBefore = SEM_NOGPFAULTERRORBOX;

  ErrorModeTest() : former_(SetErrorMode(kModeBefore)) { ModeSeen() = 0; }
  ~ErrorModeTest() override { SetErrorMode(former_); }

  /// The error mode during the latest question that was led astray.
  static UINT& ModeSeen() {
    static UINT mode = 0;
    return mode;
  }

  static void ExpectAskedQuietlyAndPutBack() {
    EXPECT_EQ(ModeSeen(), static_cast<UINT>(SEM_FAILCRITICALERRORS));
    EXPECT_EQ(SetErrorMode(kModeBefore), kModeBefore) << "programs that are started inherit the mode";
  }

 private:
  UINT former_;
};

}  // namespace qdix::contract
