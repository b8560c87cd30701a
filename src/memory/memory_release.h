// Makes Windows free memory: allocates blocks, lets Windows page while events are handled, and frees the
// blocks. All releases use this code; the request holds what differs between them.
#pragma once

#include "base/callback.h"
#include "host/boxes.h"
#include "os/system.h"
#include "ui/form.h"

namespace qdix::memory {

struct ReleaseRequest {
  /// Megabytes of 1,040,000 bytes for one pass. Read again before each pass.
  base::Callback<double()> amount_mb{};
  /// Number of passes. A fraction is dropped: 2.5 runs two. Below 1, including negative numbers, none runs.
  double passes = 0;
  /// If bound, called before each pass with its amount. True ends the release because enough memory is free.
  base::Callback<bool(double)> enough_is_free{};
  /// If bound, called when memory runs out. True suppresses the warning.
  base::Callback<bool()> warning_is_silenced{};
};

enum class ReleaseOutcome {
  kFinished,
  /// A pass failed. The user was told, or the warning was suppressed.
  kFailed,
  /// The main window was unloaded during the release. The caller must do nothing more.
  kUnloaded,
};

class MemoryRelease {
 public:
  /// Largest amount that one block holds. A second block takes the rest.
  static constexpr double kFirstBlockMb = 250;
  /// Event pumps while the blocks are held, and again after they are freed.
  static constexpr int kPumpsPerPhase = 5000;
  static constexpr const char* kLowResourcesWarning =
      "Warning - System Resources may be low.  Please check your harddisk space and swapfile size.";

  MemoryRelease(const os::System& system, host::Boxes& boxes, const ui::Form& form)
      : system_(system), boxes_(boxes), form_(form) {}

  /// Runs the passes of a release inside the calling handler. Any other handler can run in its event pumps,
  /// including another release.
  ReleaseOutcome FreeUpMemory(const ReleaseRequest& request);

 private:
  ReleaseOutcome RunPass(const ReleaseRequest& request, double amount_mb);
  void PumpEvents();
  void ReportFailure(const ReleaseRequest& request, const base::RuntimeError& error);

  const os::System& system_;
  host::Boxes& boxes_;
  const ui::Form& form_;
};

}  // namespace qdix::memory
