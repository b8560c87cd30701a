#include "tests/e2e/driver/hand.h"

#include <vector>

#include "tests/e2e/driver/native_windows.h"
#include "tests/e2e/driver/polling.h"

namespace qdix::e2e {

namespace {

constexpr int kLooksAtRest = 3;

HWND TopLevelOf(HWND window) {
  while (window != nullptr && (GetWindowLongA(window, GWL_STYLE) & WS_CHILD) != 0) window = GetParent(window);
  return window;
}

POINT OnScreen(HWND window, POINT inside) {
  RECT rect = {};
  GetWindowRect(window, &rect);
  return {rect.left + inside.x, rect.top + inside.y};
}

/// Returns the middle of a pixel in the units of an absolute move: 65536 across the screen.
LONG Absolute(LONG pixel, int screen_pixels) { return (pixel * 65536 + 32768) / screen_pixels; }

INPUT PointerButton(DWORD flags) {
  INPUT input = {};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  return input;
}

INPUT PointerMove(POINT place) {
  INPUT input = PointerButton(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE);
  input.mi.dx = Absolute(place.x, GetSystemMetrics(SM_CXSCREEN));
  input.mi.dy = Absolute(place.y, GetSystemMetrics(SM_CYSCREEN));
  return input;
}

/// Moves the pointer and waits until it has come to rest; returns false if it does not.
bool MovePointer(POINT place) {
  INPUT move = PointerMove(place);
  int looks_at_rest = 0;
  return Eventually([&] {
    POINT now = {};
    GetCursorPos(&now);
    const bool is_there = now.x == place.x && now.y == place.y;
    if (!is_there) SendInput(1, &move, sizeof move);
    looks_at_rest = is_there ? looks_at_rest + 1 : 0;
    return looks_at_rest >= kLooksAtRest;
  });
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
  // Repeated: a window that has just opened may come to the front after the first request. Only windows that
  // answer are asked, because the system waits for the window without a limit.
  return Eventually([top_level] {
    return GetForegroundWindow() == top_level ||
           (Answers(top_level) && SetForegroundWindow(top_level) != 0 && GetForegroundWindow() == top_level);
  });
}

bool Click(HWND control) {
  RECT rect = {};
  GetWindowRect(control, &rect);
  return ClickAt(control, {(rect.right - rect.left) / 2, (rect.bottom - rect.top) / 2});
}

bool ClickAt(HWND control, POINT inside) {
  return BringForward(TopLevelOf(control)) && PressAt(control, inside, Press::kLeft);
}

bool PointAt(HWND window, POINT inside) {
  const POINT place = OnScreen(window, inside);
  return TopLevelOf(WindowFromPoint(place)) == TopLevelOf(window) && MovePointer(place);
}

bool PressAt(HWND window, POINT inside, Press press) {
  if (!PointAt(window, inside)) return false;
  // The move is repeated: the pointer of the real screen may drag this one along until it rests.
  std::vector<INPUT> inputs{PointerMove(OnScreen(window, inside))};
  const bool is_right = press == Press::kRight;
  for (int times = press == Press::kLeftTwice ? 2 : 1; times > 0; --times) {
    inputs.push_back(PointerButton(is_right ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN));
    inputs.push_back(PointerButton(is_right ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP));
  }
  return SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT)) == inputs.size();
}

bool Drag(HWND control, POINT from, int pixels) {
  if (!BringForward(TopLevelOf(control)) || !PointAt(control, from)) return false;
  const POINT begin = OnScreen(control, from);
  INPUT press[] = {PointerMove(begin), PointerButton(MOUSEEVENTF_LEFTDOWN)};
  INPUT release = PointerButton(MOUSEEVENTF_LEFTUP);
  if (SendInput(2, press, sizeof(INPUT)) != 2) return false;
  const bool is_there = MovePointer({begin.x + pixels, begin.y});
  return SendInput(1, &release, sizeof(INPUT)) == 1 && is_there;
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
