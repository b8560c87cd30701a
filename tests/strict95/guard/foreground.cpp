// The foreground lock of Windows 98: a program that neither has the foreground nor received the last click
// cannot bring a window to the front. A message box without a visible owner then opens behind all other
// windows.
#include "tests/strict95/guard/rules.h"

namespace qdix::strict95 {

namespace {

bool HasForeground() {
  DWORD process = 0;
  GetWindowThreadProcessId(GetForegroundWindow(), &process);
  return process == GetCurrentProcessId();
}

void CheckBox(const Call& call) {
  auto* const owner = call.Argument<HWND>(1);
  const UINT flags = call.Argument(4);
  const bool is_seen_owner = owner != nullptr && IsWindowVisible(owner) != 0 && IsIconic(owner) == 0;
  if (is_seen_owner || HasForeground() || (flags & MB_TOPMOST) != 0) return;
  Report(call, Rule::kForeground, "a box of a window that nobody sees stays behind the others");
}

}  // namespace

void AddForegroundRules(Watches& watches) {
  if (ChosenMachine() == Machine::k98) watches.Before("MessageBoxA", &CheckBox);
}

}  // namespace qdix::strict95
