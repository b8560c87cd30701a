#include "bench/stopwatch.h"

#include <array>
#include <cstdint>

#include "bench/session.h"
#include "tests/e2e/driver/inside_process.h"

namespace qdix::bench {

double Stopwatch::Ms() const {
  LARGE_INTEGER now = {};
  LARGE_INTEGER per_second = {};
  QueryPerformanceCounter(&now);
  QueryPerformanceFrequency(&per_second);
  return static_cast<double>(now.QuadPart - start_.QuadPart) * 1000 /
         static_cast<double>(per_second.QuadPart);
}

double ProcessorMs(HANDLE process) {
  constexpr std::uint32_t kItself = 0xFFFFFFFFU;
  constexpr double kTicksPerMs = 10000;
  enum Time {
    kCreated,
    kEnded,
    kInSystem,
    kInProgram,
    kTimes
  };
  std::array<std::uint64_t, kTimes> times{};
  e2e::ForeignPage page(process);
  const auto place = [&page](Time time) {
    return page.At(static_cast<std::uint32_t>(time * sizeof(std::uint64_t)));
  };
  const auto answer =
      e2e::CallInside(process, e2e::SystemFunction("kernel32.dll", "GetProcessTimes"),
                      {kItself, place(kCreated), place(kEnded), place(kInSystem), place(kInProgram)});
  const auto* const there = reinterpret_cast<const void*>(static_cast<std::uintptr_t>(page.At(0)));
  const bool is_read =
      answer.value_or(0) != 0 && ReadProcessMemory(process, there, times.data(), sizeof times, nullptr) != 0;
  Require(is_read && times[kInSystem] + times[kInProgram] > 0, "a process does not know its processor time");
  page.Free();
  return static_cast<double>(times[kInSystem] + times[kInProgram]) / kTicksPerMs;
}

}  // namespace qdix::bench
