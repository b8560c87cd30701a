#include "tests/strict95/guard/window_messages.h"

#include <vector>

namespace qdix::strict95 {

namespace {

std::vector<MessageWatch>& MessageWatches() {
  static std::vector<MessageWatch> watches;
  return watches;
}

void Show(HWND window, UINT message, LPARAM lparam) {
  for (const MessageWatch& watch : MessageWatches()) watch(window, message, lparam);
}

LRESULT CALLBACK Sent(int code, WPARAM wparam, LPARAM lparam) {
  const auto& record = *reinterpret_cast<const CWPSTRUCT*>(lparam);
  if (code == HC_ACTION) Show(record.hwnd, record.message, record.lParam);
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

LRESULT CALLBACK Taken(int code, WPARAM wparam, LPARAM lparam) {
  const auto& record = *reinterpret_cast<const MSG*>(lparam);
  if (code == HC_ACTION && wparam == PM_REMOVE) Show(record.hwnd, record.message, record.lParam);
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

/// The hooks need a thread that is connected to its desktop, which it is not yet when the guard is loaded.
void SetHooks() {
  static HHOOK sent = nullptr;
  static HHOOK taken = nullptr;
  if (sent == nullptr) sent = SetWindowsHookExA(WH_CALLWNDPROC, &Sent, nullptr, GetCurrentThreadId());
  if (taken == nullptr) taken = SetWindowsHookExA(WH_GETMESSAGE, &Taken, nullptr, GetCurrentThreadId());
}

}  // namespace

void WatchWindowMessages(Watches& watches, MessageWatch watch) {
  if (MessageWatches().empty()) watches.Before("CreateWindowExA", [](Call& /*call*/) { SetHooks(); });
  MessageWatches().push_back(std::move(watch));
}

}  // namespace qdix::strict95
