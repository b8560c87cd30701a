#include "tests/e2e/driver/hand.h"

#include <array>

#include "tests/e2e/driver/polling.h"

namespace qdix::e2e {

namespace {

HWND TopLevelOf(HWND window) {
  while (window != nullptr && (GetWindowLongA(window, GWL_STYLE) & WS_CHILD) != 0) window = GetParent(window);
  return window;
}

void SendKey(int key, DWORD flags) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = static_cast<WORD>(key);
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(static_cast<UINT>(key), 0));
  input.ki.dwFlags = flags;
  SendInput(1, &input, sizeof input);
}

}  // namespace

bool BringForward(HWND top_level) {
  SetForegroundWindow(top_level);
  return Eventually([top_level] { return GetForegroundWindow() == top_level; });
}

bool Click(HWND control) {
  RECT rect = {};
  GetWindowRect(control, &rect);
  return ClickAt(control, {(rect.right - rect.left) / 2, (rect.bottom - rect.top) / 2});
}

bool ClickAt(HWND control, POINT inside) {
  const HWND top_level = TopLevelOf(control);
  if (!BringForward(top_level)) return false;
  RECT rect = {};
  GetWindowRect(control, &rect);
  const POINT place{rect.left + inside.x, rect.top + inside.y};
  SetCursorPos(place.x, place.y);
  if (TopLevelOf(WindowFromPoint(place)) != top_level) return false;
  std::array<INPUT, 2> inputs = {};
  for (INPUT& input : inputs) input.type = INPUT_MOUSE;
  inputs[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
  inputs[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
  return SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT)) == inputs.size();
}

void PressKey(int key) {
  SendKey(key, 0);
  SendKey(key, KEYEVENTF_KEYUP);
}

void PressKeyWith(int held_key, int key) {
  SendKey(held_key, 0);
  PressKey(key);
  SendKey(held_key, KEYEVENTF_KEYUP);
}

void TypeText(const std::string& text) {
  for (const char character : text) PressKey(LOBYTE(VkKeyScanA(character)));
}

}  // namespace qdix::e2e
