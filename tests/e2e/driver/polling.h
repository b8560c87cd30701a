// Waits for a condition by checking it repeatedly until a deadline, never by sleeping and hoping.
#pragma once

#include <functional>

namespace qdix::e2e {

/// Longer than anything takes on a busy machine of normal speed, except a release.
inline constexpr int kDeadlineMs = 30000;

/// Name of the environment variable that says how many times slower this machine is than one of normal speed.
inline constexpr const char* kSlownessVariable = "QDIX_E2E_SLOWNESS";

/// Returns the time to wait here if a machine of normal speed is given `deadline_ms`: at most three times as
/// long.
[[nodiscard]] int Patience(int deadline_ms);

/// Checks until the condition is true; returns false if the deadline passes first. Checks at least once.
[[nodiscard]] bool Eventually(const std::function<bool()>& condition, int deadline_ms = kDeadlineMs);

}  // namespace qdix::e2e
