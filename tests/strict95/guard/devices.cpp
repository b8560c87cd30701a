// When Windows 95 forgets what a device context was set to. A new page resets that of the printer: fonts,
// colours and modes return to their defaults. A change of the screen's colours leaves bitmaps in a format
// that the display driver no longer draws; so the contexts that have such a bitmap selected are of no use.
#include <set>

#include "tests/strict95/guard/rules.h"
#include "tests/strict95/guard/window_messages.h"

namespace qdix::strict95 {

namespace {

void Reset(const Call& call) {
  auto* const device = call.Argument<HDC>(1);
  SelectObject(device, GetStockObject(SYSTEM_FONT));
  SelectObject(device, GetStockObject(WHITE_BRUSH));
  SelectObject(device, GetStockObject(BLACK_PEN));
  SetTextColor(device, RGB(0, 0, 0));
  SetBkColor(device, RGB(255, 255, 255));
  SetBkMode(device, OPAQUE);
  SetROP2(device, R2_COPYPEN);
  SetTextAlign(device, TA_LEFT | TA_TOP | TA_NOUPDATECP);
  SetMapMode(device, MM_TEXT);
  SetWindowOrgEx(device, 0, 0, nullptr);
  SetViewportOrgEx(device, 0, 0, nullptr);
  SelectClipRgn(device, nullptr);
}

/// The bitmaps in the screen's format, and those of them whose format the screen no longer has.
struct Bitmaps {
  std::set<HGDIOBJ> all;
  std::set<HGDIOBJ> outdated;
};

Bitmaps& TheBitmaps() {
  static Bitmaps bitmaps;
  return bitmaps;
}

/// Windows tells its top-level windows, which tell their children.
void FollowDisplay(HWND window, UINT message) {
  if (message != WM_DISPLAYCHANGE || (GetWindowLongA(window, GWL_STYLE) & WS_CHILD) != 0) return;
  TheBitmaps().outdated = TheBitmaps().all;
}

/// A call fails if one of its device contexts has an outdated bitmap.
void CheckDevice(Call& call, unsigned argument) {
  HGDIOBJ const bitmap = GetCurrentObject(call.Argument<HDC>(argument), OBJ_BITMAP);
  if (TheBitmaps().outdated.contains(bitmap)) call.Refuse(0);
}

}  // namespace

void AddDeviceRules(Watches& watches) {
  watches.After("StartPage", &Reset);
  WatchWindowMessages(watches,
                      [](HWND window, UINT message, LPARAM /*lparam*/) { FollowDisplay(window, message); });
  watches.After("CreateCompatibleBitmap", [](Call& call) {
    auto* const bitmap = reinterpret_cast<HGDIOBJ>(static_cast<std::uintptr_t>(call.result));
    TheBitmaps().all.insert(bitmap);
    TheBitmaps().outdated.erase(bitmap);
  });
  watches.Before("DeleteObject", [](Call& call) {
    TheBitmaps().all.erase(call.Argument<HGDIOBJ>(1));
    TheBitmaps().outdated.erase(call.Argument<HGDIOBJ>(1));
  });
  watches.Before("BitBlt", [](Call& call) {
    CheckDevice(call, 1);
    CheckDevice(call, 6);
  });
  for (const char* const function : {"ExtTextOutA", "TextOutA", "DrawTextA", "DrawIconEx"}) {
    watches.Before(function, [](Call& call) { CheckDevice(call, 1); });
  }
}

}  // namespace qdix::strict95
