// Waiting for something to become true: asked again and again until a deadline, never a sleep that hopes.
#pragma once

#include <functional>

namespace qdix::e2e {

/// Longer than anything takes on a busy machine of the usual speed, except a release.
inline constexpr int kDeadlineMs = 30000;

/// Name of the environment variable with the factor by which this machine is slower than one of the usual
/// speed.
inline constexpr const char* kSlownessVariable = "QDIX_E2E_SLOWNESS";

/// The time to wait here where a machine of the usual speed is given `deadline_ms`: at most three times as
/// long.
[[nodiscard]] int Patience(int deadline_ms);

/// Asks until the answer is true; false when the deadline passes first. It is asked at least once.
[[nodiscard]] bool Eventually(const std::function<bool()>& condition, int deadline_ms = kDeadlineMs);

}  // namespace qdix::e2e
