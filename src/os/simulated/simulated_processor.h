// The processor of the simulated machine. It gives the answers that a test sets, for example those of a real
// processor.
#pragma once

#include <map>

#include "os/processor.h"
#include "os/simulated/call_log.h"

namespace qdix::os::simulated {

class SimulatedProcessor final : public Processor {
 public:
  explicit SimulatedProcessor(CallLog& log) : log_(log) {}

  int Generation() override { return generation_; }
  bool HasCpuid() override { return !leaves_.empty(); }
  CpuidRegisters Cpuid(std::uint32_t leaf) override {
    const auto found = leaves_.find(leaf);
    return found == leaves_.end() ? CpuidRegisters{} : found->second;
  }
  CycleCount CountCycles(std::uint32_t milliseconds) override {
    if (log_.RecordAndFail("CountCycles", std::to_string(milliseconds)) || clock_khz_ == 0) return {};
    return {.cycles = std::uint64_t{clock_khz_} * milliseconds,
            .microseconds = std::uint64_t{1000} * milliseconds};
  }

  /// Simulates a processor that does not identify itself: 3 is a 386, 4 a 486.
  void SetGeneration(int generation) {
    generation_ = generation;
    leaves_.clear();
  }
  void SetLeaf(std::uint32_t leaf, const CpuidRegisters& answer) { leaves_[leaf] = answer; }
  /// Sets the clock in thousands of cycles per second; 0 forbids the counter.
  void SetClock(std::uint32_t khz) { clock_khz_ = khz; }

 private:
  CallLog& log_;
  int generation_ = 4;
  std::map<std::uint32_t, CpuidRegisters> leaves_;
  std::uint32_t clock_khz_ = 0;
};

}  // namespace qdix::os::simulated
