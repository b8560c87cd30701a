#include "tests/e2e/driver/polling.h"

#include <algorithm>
#include <cstdlib>

// clang-format off
#include <windows.h>
// clang-format on

namespace qdix::e2e {

namespace {

constexpr DWORD kPollMs = 10;

/// 1 if it has not been measured.
int Slowness() {
  constexpr long kMaxPatience = 3;
  const char* const measured = std::getenv(kSlownessVariable);
  const long factor = measured == nullptr ? 1 : std::strtol(measured, nullptr, 10);
  return static_cast<int>(std::clamp(factor, 1L, kMaxPatience));
}

}  // namespace

int Patience(int deadline_ms) { return deadline_ms * Slowness(); }

bool Eventually(const std::function<bool()>& condition, int deadline_ms) {
  const DWORD start = GetTickCount();
  while (!condition()) {
    if (GetTickCount() - start > static_cast<DWORD>(Patience(deadline_ms))) return false;
    Sleep(kPollMs);
  }
  return true;
}

}  // namespace qdix::e2e
