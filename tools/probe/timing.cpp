#include "timing.h"

#include "tests/e2e/driver/bare_loop.h"

namespace qdix::probe {

namespace {

constexpr double kFailed = -1;
constexpr UINT kPressLimitMs = 300000;

double NowMs() {
  LARGE_INTEGER now = {};
  LARGE_INTEGER per_second = {};
  QueryPerformanceCounter(&now);
  QueryPerformanceFrequency(&per_second);
  return static_cast<double>(now.QuadPart) * 1000 / static_cast<double>(per_second.QuadPart);
}

}  // namespace

double PressMs(const e2e::ShippedProgram& program, const std::string& name) {
  const HWND button = program.Control(name);
  const double start_ms = NowMs();
  DWORD_PTR answer = 0;
  // A press by message comes back when the handler has ended.
  if (SendMessageTimeoutA(button, BM_CLICK, 0, 0, SMTO_NORMAL, kPressLimitMs, &answer) == 0) return kFailed;
  return NowMs() - start_ms;
}

double LoopMs(SIZE_T bytes, int pumps) {
  const double start_ms = NowMs();
  {
    const e2e::TouchedBlock block(bytes);
    if (!block.IsThere()) return kFailed;
    e2e::Pump(pumps);
  }
  e2e::Pump(pumps);
  return NowMs() - start_ms;
}

double PumpsMs(int times, bool with_window) {
  const HWND window =
      with_window ? CreateWindowA("STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr)
                  : nullptr;
  if (with_window && window == nullptr) return kFailed;
  const double start_ms = NowMs();
  e2e::Pump(times);
  const double ms = NowMs() - start_ms;
  if (window != nullptr) DestroyWindow(window);
  return ms;
}

}  // namespace qdix::probe
