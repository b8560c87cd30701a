// The control word of the 387 that all calculations of the program rely on. On Windows 95, 98 and ME, printer
// drivers, the shell and its extensions leave a different one behind.
#pragma once

namespace qdix::runtime {

/// Sets 53-bit precision, rounding to nearest, all exceptions masked: the same arithmetic as in the tests.
inline void SetFloatingPointControl() {
  constexpr unsigned short kControlWord = 0x027F;
  asm volatile("fldcw %0" ::"m"(kControlWord));
}

/// Returns the control word.
[[nodiscard]] inline unsigned short FloatingPointControl() {
  unsigned short word = 0;
  asm volatile("fnstcw %0" : "=m"(word));
  return word;
}

/// Sets the control word again at the end of its scope. For calls that run code of other programs or drivers.
class FloatingPointKeeper {
 public:
  FloatingPointKeeper() = default;
  FloatingPointKeeper(const FloatingPointKeeper&) = delete;
  FloatingPointKeeper& operator=(const FloatingPointKeeper&) = delete;
  ~FloatingPointKeeper() { SetFloatingPointControl(); }
};

}  // namespace qdix::runtime
