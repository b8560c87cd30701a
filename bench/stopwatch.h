// Measures elapsed time and the processor time of a process, in milliseconds.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

namespace qdix::bench {

class Stopwatch {
 public:
  Stopwatch() { QueryPerformanceCounter(&start_); }

  [[nodiscard]] double Ms() const;

 private:
  LARGE_INTEGER start_ = {};
};

/// Returns user and system time since the start of the process, in steps of 10 ms. Calls GetProcessTimes
/// inside that process, because Wine tells no other process; the handle needs all rights.
[[nodiscard]] double ProcessorMs(HANDLE process);

}  // namespace qdix::bench
