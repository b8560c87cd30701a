// On Windows 95 a new page resets the printer's device context: fonts, colours and modes return to their
// defaults.
#include "tests/strict95/guard/rules.h"

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
}

}  // namespace

void AddDeviceRules(Watches& watches) { watches.After("StartPage", &Reset); }

}  // namespace qdix::strict95
