#include "os/win32/win32_dialogs.h"

#include <array>
#include <string_view>

namespace qdix::os::win32 {

namespace {

static_assert(kMbOk == MB_OK && kMbOkCancel == MB_OKCANCEL && kMbYesNo == MB_YESNO &&
              kMbYesNoCancel == MB_YESNOCANCEL && kMbButtons == MB_TYPEMASK &&
              kMbDefaultButton2 == MB_DEFBUTTON2);
static_assert(kMbIconStop == MB_ICONHAND && kMbIconQuestion == MB_ICONQUESTION &&
              kMbIconExclamation == MB_ICONEXCLAMATION && kMbIconInformation == MB_ICONASTERISK);
static_assert(kIdOk == IDOK && kIdCancel == IDCANCEL && kIdYes == IDYES && kIdNo == IDNO);

constexpr std::string_view kDialogClass = "#32770";

BOOL CALLBACK EndIfDialog(HWND window, LPARAM /*context*/) {
  // One character more than the class name, so that a longer name does not match when it is truncated.
  std::array<char, kDialogClass.size() + 2> name{};
  const int length = GetClassNameA(window, name.data(), static_cast<int>(name.size()));
  if (std::string_view(name.data(), static_cast<std::size_t>(length)) == kDialogClass)
    EndDialog(window, kIdNone);
  return TRUE;
}

}  // namespace

int Win32Dialogs::MessageBoxA(const std::string& text, const std::string& title, std::uint32_t flags) {
  if (stopped_) return kIdNone;
  // A message box of a hidden or minimised window has no place on the taskbar. Behind other windows nobody
  // would ever find it, and the program would wait silently for its answer. Windows 98 and later refuse the
  // foreground to a program that the user is not working with, but a topmost box is visible in any case.
  const UINT foreground = OwnerIsInView() ? 0U : MB_SETFOREGROUND;
  const int answer = ::MessageBoxA(owner_, text.c_str(), title.c_str(), flags | foreground | MB_TOPMOST);
  // A box that fails to open returns 0, or -1 if the failure comes from the dialog inside it.
  return stopped_ || answer < 0 ? kIdNone : answer;
}

/// Closes the boxes of this thread only; all windows of the program belong to it.
void Win32Dialogs::Stop() {
  stopped_ = true;
  EnumThreadWindows(GetCurrentThreadId(), &EndIfDialog, 0);
}

bool Win32Dialogs::OwnerIsInView() const {
  return owner_ != nullptr && IsWindowVisible(owner_) && !IsIconic(owner_);
}

}  // namespace qdix::os::win32
