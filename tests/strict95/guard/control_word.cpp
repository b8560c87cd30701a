// Printer drivers, file dialogs, COM and shell extensions may change the 387's control word. A program must
// restore its own before it continues, or its results change.
#include "tests/strict95/guard/rules.h"

namespace qdix::strict95 {

namespace {

/// 24 bits of precision, rounding upwards, no exceptions.
constexpr std::uint16_t kForeignWord = 0x087F;
/// The bits that affect results: precision and rounding. The exception masks do not matter.
constexpr std::uint16_t kPrecisionAndRounding = 0x0F00;

struct Expected {
  std::uint16_t word = 0;
  bool is_due = false;
};

Expected& GetExpected() {
  static Expected expected;
  return expected;
}

std::uint16_t ControlWord() {
  std::uint16_t word = 0;
  asm volatile("fnstcw %0" : "=m"(word));
  return word;
}

void Remember(const Call& /*call*/) {
  if (!GetExpected().is_due) GetExpected().word = ControlWord();
}

void SetForeignWord(const Call& /*call*/) {
  const std::uint16_t word = kForeignWord;
  asm volatile("fldcw %0" : : "m"(word));
  GetExpected().is_due = true;
}

void CheckSetAgain(const Call& call) {
  if (!GetExpected().is_due) return;
  GetExpected().is_due = false;
  const std::uint16_t found = ControlWord();
  if (((found ^ GetExpected().word) & kPrecisionAndRounding) == 0) return;
  Report(call, Rule::kControlWord, Format("continues with the control word %#x that other code set", found));
  asm volatile("fldcw %0" : : "m"(GetExpected().word));
}

}  // namespace

void AddControlWordRules(Watches& watches) {
  for (const char* const function :
       {"PrintDlgA", "GetOpenFileNameA", "SHBrowseForFolderA", "ShellExecuteA", "SHFileOperationA",
        "CoCreateInstance", "StartDocA", "EndPage", "EndDoc"}) {
    watches.Before(function, &Remember);
    watches.After(function, &SetForeignWord);
  }
  for (const char* const function : {"GetMessageA", "PeekMessageA", "ExitProcess", "SetWindowTextA"}) {
    watches.Before(function, &CheckSetAgain);
  }
}

}  // namespace qdix::strict95
