// The show command from STARTUPINFO: Windows uses it instead of the first ordinary show command that the
// program gives for a top-level window without an owner.
#include "tests/strict95/guard/rules.h"

namespace qdix::strict95 {

namespace {

bool IsOrdinary(std::uint32_t show) {
  return show == SW_SHOW || show == SW_SHOWNORMAL || show == SW_SHOWDEFAULT;
}

bool IsTopLevelWithoutOwner(HWND window) {
  return (GetWindowLongA(window, GWL_STYLE) & (WS_CHILD | WS_POPUP)) == 0 &&
         GetWindow(window, GW_OWNER) == nullptr;
}

}  // namespace

void AddStartCommand(Watches& watches) {
  watches.Before("ShowWindow", [is_granted = false](Call& call) mutable {
    STARTUPINFOA start{};
    GetStartupInfoA(&start);
    if (is_granted || (start.dwFlags & STARTF_USESHOWWINDOW) == 0 || !IsOrdinary(call.Argument(2)) ||
        !IsTopLevelWithoutOwner(call.Argument<HWND>(1))) {
      return;
    }
    is_granted = true;
    call.arguments[1] = start.wShowWindow;
  });
}

}  // namespace qdix::strict95
