#include "memory/memory_release.h"

#include <limits>

#include "base/numbers.h"
#include "memory/memory_block.h"

namespace qdix::memory {

namespace {

base::Status AllocateBlocks(double amount_mb, MemoryBlock& block_a, MemoryBlock& block_b) {
  if (amount_mb <= MemoryRelease::kFirstBlockMb) return block_a.Allocate(amount_mb * base::kReleaseMbBytes);
  const base::Status first = block_a.Allocate(MemoryRelease::kFirstBlockMb * base::kReleaseMbBytes);
  if (!first.Ok()) return first;
  return block_b.Allocate((amount_mb - MemoryRelease::kFirstBlockMb) * base::kReleaseMbBytes);
}

}  // namespace

ReleaseOutcome MemoryRelease::FreeUpMemory(const ReleaseRequest& request) {
  // More passes than fit into 32 bits would take years, and closing the window ends a release at any pass.
  const std::int32_t passes =
      base::ClampToInt32(base::WholePart(request.passes), 0, std::numeric_limits<std::int32_t>::max());
  for (std::int32_t done = 0; done < passes; ++done) {
    if (form_.Unloaded()) return ReleaseOutcome::kUnloaded;
    const double amount_mb = request.amount_mb();
    // The check can open a message box, and the user may close the window while it is open.
    if (request.enough_is_free && request.enough_is_free(amount_mb)) break;
    if (form_.Unloaded()) break;
    const ReleaseOutcome outcome = RunPass(request, amount_mb);
    if (outcome != ReleaseOutcome::kFinished) return outcome;
  }
  return form_.Unloaded() ? ReleaseOutcome::kUnloaded : ReleaseOutcome::kFinished;
}

ReleaseOutcome MemoryRelease::RunPass(const ReleaseRequest& request, double amount_mb) {
  MemoryBlock block_a(system_.memory);
  MemoryBlock block_b(system_.memory);
  const base::Status allocated = AllocateBlocks(amount_mb, block_a, block_b);
  if (!allocated.Ok()) {
    ReportFailure(request, allocated.Error());
    return form_.Unloaded() ? ReleaseOutcome::kUnloaded : ReleaseOutcome::kFailed;
  }
  PumpEvents();
  block_a.Release();
  block_b.Release();
  PumpEvents();
  return form_.Unloaded() ? ReleaseOutcome::kUnloaded : ReleaseOutcome::kFinished;
}

void MemoryRelease::PumpEvents() {
  for (int count = 1; count <= kPumpsPerPhase && !form_.Unloaded(); ++count) system_.event_pump.PumpEvents();
}

// The blocks of the failed pass are still held while the message box is open, so the box must not need much
// memory.
void MemoryRelease::ReportFailure(const ReleaseRequest& request, const base::RuntimeError& error) {
  if (error == base::kOutOfMemory) {
    if (request.warning_is_silenced && request.warning_is_silenced()) return;
    boxes_.Show(kLowResourcesWarning);
    return;
  }
  boxes_.Show(error.Description());
}

}  // namespace qdix::memory
