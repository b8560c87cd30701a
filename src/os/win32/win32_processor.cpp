#include "os/win32/win32_processor.h"

#include <windows.h>

namespace qdix::os::win32 {

namespace {

constexpr std::uint32_t kAlignmentCheckFlag = 1U << 18U;
constexpr std::uint32_t kIdentificationFlag = 1U << 21U;

constexpr std::uint64_t kMicrosecondsPerSecond = 1000000;

/// The opcode of RDTSC, which reads the time-stamp counter.
constexpr BYTE kReadCounter[] = {0x0F, 0x31};

/// True if a program can change this processor flag. Restores the flag.
bool CanChangeFlag(std::uint32_t flag) {
  std::uint32_t before = 0;
  std::uint32_t after = 0;
  __asm__ volatile(
      "pushfl\n\t"
      "popl %0\n\t"
      "movl %0, %1\n\t"
      "xorl %2, %1\n\t"
      "pushl %1\n\t"
      "popfl\n\t"
      "pushfl\n\t"
      "popl %1\n\t"
      "pushl %0\n\t"
      "popfl"
      : "=&r"(before), "=&r"(after)
      : "r"(flag)
      : "cc", "memory");
  return ((before ^ after) & flag) != 0;
}

/// Not inlined: the check of the finished program allows this instruction once.
[[gnu::noinline]] CpuidRegisters Identify(std::uint32_t leaf) {
  CpuidRegisters registers;
  __asm__ volatile("cpuid"
                   : "=a"(registers.eax), "=b"(registers.ebx), "=c"(registers.ecx), "=d"(registers.edx)
                   : "a"(leaf), "c"(0));
  return registers;
}

struct CounterReading {
  std::uint64_t cycles;
  bool allowed;
};

/// If reading the counter is forbidden, SkipForbiddenRead skips the instruction and clears `allowed`. Not
/// inlined: the check of the finished program allows this instruction once.
[[gnu::noinline]] CounterReading ReadCounter() {
  std::uint32_t allowed = 1;
  std::uint32_t low = 0;
  std::uint32_t high = 0;
  __asm__ volatile("rdtsc" : "=a"(low), "=d"(high), "+c"(allowed));
  return {.cycles = (std::uint64_t{high} << 32U) | low, .allowed = allowed != 0};
}

LONG WINAPI SkipForbiddenRead(EXCEPTION_POINTERS* fault) {
  CONTEXT& context = *fault->ContextRecord;
  const auto* const instruction = reinterpret_cast<const BYTE*>(context.Eip);
  const DWORD code = fault->ExceptionRecord->ExceptionCode;
  const bool is_refusal = code == static_cast<DWORD>(STATUS_PRIVILEGED_INSTRUCTION) ||
                          code == static_cast<DWORD>(STATUS_ILLEGAL_INSTRUCTION) ||
                          code == static_cast<DWORD>(STATUS_ACCESS_VIOLATION);
  if (!is_refusal || fault->ExceptionRecord->ExceptionAddress != instruction ||
      instruction[0] != kReadCounter[0] || instruction[1] != kReadCounter[1]) {
    return EXCEPTION_CONTINUE_SEARCH;
  }
  context.Eip += sizeof kReadCounter;
  context.Ecx = 0;
  return EXCEPTION_CONTINUE_EXECUTION;
}

std::optional<std::uint64_t> HighResolutionTicks() {
  LARGE_INTEGER ticks{};
  if (QueryPerformanceCounter(&ticks) == 0) return std::nullopt;
  return static_cast<std::uint64_t>(ticks.QuadPart);
}

}  // namespace

int Win32Processor::Generation() {
  constexpr int k386 = 3;
  constexpr int k486 = 4;
  return CanChangeFlag(kAlignmentCheckFlag) ? k486 : k386;
}

bool Win32Processor::HasCpuid() { return CanChangeFlag(kIdentificationFlag); }

CpuidRegisters Win32Processor::Cpuid(std::uint32_t leaf) {
  return HasCpuid() ? Identify(leaf) : CpuidRegisters{};
}

std::optional<std::uint64_t> Win32Processor::ReadTimeStampCounter() {
  LPTOP_LEVEL_EXCEPTION_FILTER const before = SetUnhandledExceptionFilter(&SkipForbiddenRead);
  const CounterReading reading = ReadCounter();
  SetUnhandledExceptionFilter(before);
  if (!reading.allowed) return std::nullopt;
  return reading.cycles;
}

CycleCount Win32Processor::CountCycles(std::uint32_t milliseconds) {
  LARGE_INTEGER frequency{};
  if (QueryPerformanceFrequency(&frequency) == 0 || frequency.QuadPart <= 0) return {};
  const auto ticks_per_second = static_cast<std::uint64_t>(frequency.QuadPart);
  const std::uint64_t wanted_ticks = ticks_per_second * milliseconds / 1000;
  // Where memory is short, the first use of either waits for its page. That time must not be measured: it
  // would count for the clock and not for the processor.
  static_cast<void>(HighResolutionTicks());
  static_cast<void>(ReadTimeStampCounter());
  const std::optional<std::uint64_t> start = HighResolutionTicks();
  const std::optional<std::uint64_t> first = ReadTimeStampCounter();
  if (!start || !first) return {};
  const auto passed_ticks = [&start] { return HighResolutionTicks().value_or(*start) - *start; };
  // The coarse system clock limits the loop in case the high-resolution timer has stopped.
  const DWORD coarse_start = ::GetTickCount();
  while (passed_ticks() < wanted_ticks && ::GetTickCount() - coarse_start <= 4 * milliseconds) {
  }
  const std::optional<std::uint64_t> last = ReadTimeStampCounter();
  // Looked at again: the coarse clock may have jumped over a wait that the fine one has counted.
  const std::uint64_t all_ticks = passed_ticks();
  if (!last || all_ticks < wanted_ticks) return {};
  return {.cycles = *last - *first, .microseconds = all_ticks * kMicrosecondsPerSecond / ticks_per_second};
}

}  // namespace qdix::os::win32
