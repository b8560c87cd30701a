#include "tests/e2e/driver/polling.h"

// clang-format off
#include <windows.h>
// clang-format on

namespace qdix::e2e {

namespace {

constexpr DWORD kPollMs = 10;

}  // namespace

bool Eventually(const std::function<bool()>& condition, int deadline_ms) {
  const DWORD start = GetTickCount();
  while (!condition()) {
    if (GetTickCount() - start > static_cast<DWORD>(deadline_ms)) return false;
    Sleep(kPollMs);
  }
  return true;
}

}  // namespace qdix::e2e
