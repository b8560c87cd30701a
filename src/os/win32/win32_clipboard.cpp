#include "os/win32/win32_clipboard.h"

#include <algorithm>

namespace qdix::os::win32 {

namespace {

/// Returns the text with its terminating NUL in memory that the clipboard can take over, or null if memory is
/// short.
HGLOBAL MakeShared(const std::string& text) {
  HGLOBAL const memory = GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE, text.size() + 1);
  if (memory == nullptr) return nullptr;
  auto* const characters = static_cast<char*>(GlobalLock(memory));
  *std::copy(text.begin(), text.end(), characters) = '\0';
  GlobalUnlock(memory);
  return memory;
}

/// Retries, because programs that watch the clipboard open it for a moment whenever it changes.
bool OpenWithRetries(HWND owner) {
  constexpr int kTries = 10;
  constexpr DWORD kPauseMs = 20;
  for (int tried = 1; OpenClipboard(owner) == 0; ++tried) {
    if (tried == kTries) return false;
    Sleep(kPauseMs);
  }
  return true;
}

}  // namespace

bool Win32Clipboard::SetClipboardData(const std::string& text) {
  HGLOBAL const memory = MakeShared(text);
  if (memory == nullptr) return false;
  bool is_taken = false;
  if (OpenWithRetries(owner_)) {
    is_taken = EmptyClipboard() != 0 && ::SetClipboardData(CF_TEXT, memory) != nullptr;
    CloseClipboard();
  }
  if (!is_taken) GlobalFree(memory);
  return is_taken;
}

}  // namespace qdix::os::win32
