#include "timing.h"

#include "tests/e2e/driver/bare_loop.h"
#include "tests/e2e/driver/other_program.h"
#include "ui/win32/owned.h"

namespace qdix::probe {

namespace {

constexpr double kFailed = -1;
constexpr UINT kPressLimitMs = 300000;
constexpr double kStartLimitMs = 60000;
/// The precision of a start. Without a pause the polling would keep Wine's server busy, which creates the
/// windows.
constexpr DWORD kPauseMs = 1;

double NowMs() {
  LARGE_INTEGER now = {};
  LARGE_INTEGER per_second = {};
  QueryPerformanceCounter(&now);
  QueryPerformanceFrequency(&per_second);
  return static_cast<double>(now.QuadPart) * 1000 / static_cast<double>(per_second.QuadPart);
}

/// With a window, each pump of Wine also asks the screen. Null if none is wanted, or if it cannot be made.
ui::win32::OwnedWindow PumpingWindow(bool is_wanted) {
  if (!is_wanted) return nullptr;
  return ui::win32::OwnedWindow(
      CreateWindowA("STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr));
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
  const bool needs_window = pumps > 0;
  const ui::win32::OwnedWindow window = PumpingWindow(needs_window);
  if ((window != nullptr) != needs_window) return kFailed;
  const double start_ms = NowMs();
  {
    const e2e::TouchedBlock block(bytes);
    if (!block.IsThere()) return kFailed;
    e2e::Pump(pumps);
  }
  e2e::Pump(pumps);
  return NowMs() - start_ms;
}

double StartMs(const std::string& window_class, const std::string& path) {
  e2e::OtherProgram program(path, window_class);
  const double start_ms = NowMs();
  if (!program.Start()) return kFailed;
  while (!program.IsShown()) {
    if (NowMs() - start_ms > kStartLimitMs) return kFailed;
    Sleep(kPauseMs);
  }
  return NowMs() - start_ms;
}

double PumpsMs(int times, bool with_window) {
  const ui::win32::OwnedWindow window = PumpingWindow(with_window);
  if ((window != nullptr) != with_window) return kFailed;
  const double start_ms = NowMs();
  e2e::Pump(times);
  return NowMs() - start_ms;
}

}  // namespace qdix::probe
