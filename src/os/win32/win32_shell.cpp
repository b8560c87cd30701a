#include "os/win32/win32_shell.h"

// shellapi.h needs windows.h first.
// clang-format off
#include <windows.h>
#include <shellapi.h>
// clang-format on

#include <algorithm>

#include "runtime/float_control.h"

namespace qdix::os::win32 {

static_assert(kNimAdd == NIM_ADD && kNimModify == NIM_MODIFY && kNimDelete == NIM_DELETE);
static_assert(kSwShowMaximized == SW_SHOWMAXIMIZED);
static_assert(kNifAll == (NIF_MESSAGE | NIF_ICON | NIF_TIP));
static_assert(sizeof(NOTIFYICONDATAA::szTip) >= sizeof(NotifyIconData::tip));

/// Later systems appended fields to the record. The size that the caller sets makes them ignore these fields.
bool Win32Shell::Shell_NotifyIconA(std::uint32_t request, const NotifyIconData& data) {
  const runtime::FloatingPointKeeper keeper;
  NOTIFYICONDATAA record{};
  record.cbSize = data.size_bytes;
  record.hWnd = reinterpret_cast<HWND>(data.owner);
  record.uID = data.id;
  record.uFlags = data.flags;
  record.uCallbackMessage = data.callback_message;
  record.hIcon = reinterpret_cast<HICON>(data.icon);
  std::copy(data.tip.begin(), data.tip.end(), record.szTip);
  return ::Shell_NotifyIconA(request, &record) != FALSE;
}

bool Win32Shell::ShellExecuteA(const char* verb, const std::string& path, int show) {
  const runtime::FloatingPointKeeper keeper;
  // Results up to this one are error codes.
  constexpr INT_PTR kLargestError = 32;
  return reinterpret_cast<INT_PTR>(::ShellExecuteA(nullptr, verb, path.c_str(), nullptr, nullptr, show)) >
         kLargestError;
}

}  // namespace qdix::os::win32
