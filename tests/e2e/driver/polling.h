// Waiting for something to become true: asked again and again until a deadline, never a sleep that hopes.
#pragma once

#include <functional>

namespace qdix::e2e {

/// Longer than anything here takes on a busy machine, except a release.
inline constexpr int kDeadlineMs = 30000;

/// Asks until the answer is true; false when the deadline passes first. It is asked at least once.
[[nodiscard]] bool Eventually(const std::function<bool()>& condition, int deadline_ms = kDeadlineMs);

}  // namespace qdix::e2e
