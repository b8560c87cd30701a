// The 387's control word that all figures of the program rest on. Printer drivers, the shell and its
// extensions leave another one behind on Windows 95, 98 and ME.
#pragma once

namespace qdix::runtime {

/// 53-bit precision, round to nearest, all exceptions masked: the arithmetic of the tests.
inline void SetFloatingPointControl() {
  constexpr unsigned short kControlWord = 0x027F;
  asm volatile("fldcw %0" ::"m"(kControlWord));
}

/// Sets the control word again when it goes out of scope, after a call that runs code of others.
class FloatingPointKeeper {
 public:
  FloatingPointKeeper() = default;
  FloatingPointKeeper(const FloatingPointKeeper&) = delete;
  FloatingPointKeeper& operator=(const FloatingPointKeeper&) = delete;
  ~FloatingPointKeeper() { SetFloatingPointControl(); }
};

}  // namespace qdix::runtime
