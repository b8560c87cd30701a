// The foreground lock of Windows 98: only the program with the foreground, or the one with the last input,
// brings a window to the front. The input may also be a click on the program's icon next to the clock, or the
// one that started the program. Any other program's box opens behind the windows of others.
#include "tests/strict95/guard/rules.h"
#include "tests/strict95/guard/window_messages.h"

// clang-format off
#include <shellapi.h>
// clang-format on

namespace qdix::strict95 {

namespace {

/// Offsets in NOTIFYICONDATA, and the flag that makes the message valid.
constexpr int kIconFlags = 12 / 4;
constexpr int kIconMessage = 16 / 4;

struct Right {
  /// When the program last received input, on the clock of GetTickCount.
  DWORD input_ms = GetTickCount();
  /// True until the program first waits for messages.
  bool is_starting = true;
  /// The message by which its icon reports clicks.
  UINT icon_message = 0;
};

Right& TheRight() {
  static Right right;
  return right;
}

bool IsInput(UINT message, LPARAM lparam) {
  const auto is_mouse = [](UINT one) { return WM_MOUSEFIRST <= one && one <= WM_MBUTTONDBLCLK; };
  const bool is_click = message != 0 && message == TheRight().icon_message && lparam != WM_MOUSEMOVE &&
                        is_mouse(static_cast<UINT>(lparam));
  return is_click || is_mouse(message) || (WM_KEYFIRST <= message && message <= WM_KEYLAST) ||
         (WM_NCMOUSEMOVE <= message && message <= WM_NCMBUTTONDBLCLK);
}

bool HasForeground() {
  DWORD process = 0;
  GetWindowThreadProcessId(GetForegroundWindow(), &process);
  return process == GetCurrentProcessId();
}

/// True if nobody else has had input since.
bool HasLastInput() {
  // GetTickCount lags behind the clock that stamps input.
  constexpr std::int32_t kLagMs = 100;
  LASTINPUTINFO last{};
  last.cbSize = sizeof last;
  return GetLastInputInfo(&last) == 0 ||
         static_cast<std::int32_t>(last.dwTime - TheRight().input_ms) <= kLagMs;
}

/// A program keeps the right during its start. For Wine, a window that opens or closes below the pointer is
/// input to another program; for Windows it is not.
bool MayTakeForeground() { return TheRight().is_starting || HasForeground() || HasLastInput(); }

void CheckBox(Call& call) {
  if (MayTakeForeground()) return;
  call.arguments[3] &= ~MB_SETFOREGROUND;
  auto* const owner = call.Argument<HWND>(1);
  const bool is_seen_owner = owner != nullptr && IsWindowVisible(owner) != 0 && IsIconic(owner) == 0;
  if (is_seen_owner || (call.Argument(4) & (MB_TOPMOST | MB_SYSTEMMODAL)) != 0) return;
  Report(call, Rule::kForeground, "a box of a window that nobody sees stays behind the others");
}

}  // namespace

void AddForegroundRules(Watches& watches) {
  if (ChosenMachine() != Machine::k98) return;
  // The start is the first moment of the right.
  TheRight();
  WatchWindowMessages(watches, [](HWND /*window*/, UINT message, LPARAM lparam) {
    if (IsInput(message, lparam)) TheRight().input_ms = GetTickCount();
  });
  watches.Before("Shell_NotifyIconA", [](Call& call) {
    const auto* const icon = call.Argument<const std::uint32_t*>(2);
    if ((icon[kIconFlags] & NIF_MESSAGE) != 0) TheRight().icon_message = icon[kIconMessage];
  });
  watches.Before("GetMessageA", [](Call& /*call*/) { TheRight().is_starting = false; });
  watches.Before("SetForegroundWindow", [](Call& call) {
    if (!MayTakeForeground()) call.Refuse(FALSE);
  });
  watches.Before("MessageBoxA", &CheckBox);
}

}  // namespace qdix::strict95
