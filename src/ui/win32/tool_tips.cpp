#include "ui/win32/tool_tips.h"

#include <commctrl.h>

#include <string>

namespace qdix::ui::win32 {

namespace {

/// The size of TOOLINFO in the first common controls. The common controls of Windows 95 refuse the longer
/// size of later versions.
constexpr UINT kToolInfoBytes = 40;

}  // namespace

ToolTips::ToolTips(HINSTANCE instance, HWND main)
    : window_(CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_ALWAYSTIP,
                              CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, main, nullptr,
                              instance, nullptr)) {}

void ToolTips::Add(HWND control, std::string_view text) {
  if (text.empty() || control == nullptr) return;
  std::string terminated(text);
  TOOLINFOA tool{};
  tool.cbSize = kToolInfoBytes;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = GetParent(control);
  tool.uId = reinterpret_cast<UINT_PTR>(control);
  tool.lpszText = terminated.data();
  SendMessageA(window_.get(), TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace qdix::ui::win32
