// Makes the system hand memory back: takes blocks, lets the system page while events are handled, gives the
// blocks back. One core for every caller; what differs between callers is in the request.
#pragma once

#include "base/callback.h"
#include "os/system.h"
#include "ui/application.h"
#include "ui/form.h"

namespace qdix::memory {

struct ReleaseRequest {
  /// Megabytes of 1,040,000 bytes for one pass; read afresh at every pass.
  base::Callback<double()> amount_mb{};
  /// Passes run for 1, 2, ... while not above this. 0, negative or less than 1 makes none; 2.5 makes two.
  double passes = 0;
  /// Asked before each pass with its amount, where bound: true ends the release, because enough memory is
  /// free.
  base::Callback<bool(double)> enough_is_free{};
  /// Asked when memory ran out, where bound: true keeps the warning from being shown.
  base::Callback<bool()> warning_is_silenced{};
};

enum class ReleaseOutcome {
  kFinished,
  /// A pass failed; the user has been told, or the warning was silenced.
  kFailed,
  /// The main window has unloaded meanwhile: the caller must do nothing more.
  kUnloaded,
};

class MemoryRelease {
 public:
  /// Largest amount that one block holds; above it a second block takes the rest.
  static constexpr double kFirstBlockMb = 250;
  /// Event pumps while the blocks are held, and again after they went.
  static constexpr int kPumpsPerPhase = 5000;
  static constexpr const char* kLowResourcesWarning =
      "Warning - System Resources may be low.  Please check your harddisk space and swapfile size.";

  MemoryRelease(const os::System& system, const ui::Application& application, const ui::Form& form)
      : system_(system), application_(application), form_(form) {}

  /// Runs the passes of a release inside the calling handler. Any other handler may run in its event pumps,
  /// another release included.
  ReleaseOutcome FreeUpMemory(const ReleaseRequest& request);

 private:
  ReleaseOutcome RunPass(const ReleaseRequest& request, double amount_mb);
  void PumpEvents();
  void ReportFailure(const ReleaseRequest& request, const base::RuntimeError& error);

  const os::System& system_;
  const ui::Application& application_;
  const ui::Form& form_;
};

}  // namespace qdix::memory
