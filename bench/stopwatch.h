// Time that passes, and processor time that a process takes, in milliseconds.
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

/// User and system time since the start of the process, in steps of 10 ms. Asked inside of that process,
/// because Wine tells nobody else; the handle needs all rights.
[[nodiscard]] double ProcessorMs(HANDLE process);

}  // namespace qdix::bench
