#include "os/win32/win32_printer.h"

// commdlg.h needs windows.h first.
// clang-format off
#include <windows.h>
#include <commdlg.h>
// clang-format on

#include "runtime/float_control.h"

namespace qdix::os::win32 {

Win32Printer::~Win32Printer() { DeleteDC(); }

Printer::Choice Win32Printer::PrintDlgA() {
  const runtime::FloatingPointKeeper keeper;
  PRINTDLGA record{};
  record.lStructSize = sizeof record;
  record.hwndOwner = owner_;
  record.Flags = PD_ALLPAGES | PD_NOPAGENUMS | PD_NOSELECTION | PD_RETURNDC | PD_NOWARNING |
                 PD_USEDEVMODECOPIESANDCOLLATE;
  const bool is_chosen = ::PrintDlgA(&record) != FALSE;
  const bool has_failed = !is_chosen && CommDlgExtendedError() != 0;
  if (record.hDevMode != nullptr) GlobalFree(record.hDevMode);
  if (record.hDevNames != nullptr) GlobalFree(record.hDevNames);
  if (is_chosen && record.hDC != nullptr) {
    Open(record.hDC);
    return Choice::kPrint;
  }
  return is_chosen || has_failed ? Choice::kFailed : Choice::kCancelled;
}

void Win32Printer::Open(HDC device) {
  DeleteDC();
  device_ = device;
  text_.emplace(device_, kPaperFaces);
}

void Win32Printer::DeleteDC() {
  const runtime::FloatingPointKeeper keeper;
  text_.reset();
  if (device_ != nullptr) ::DeleteDC(device_);
  device_ = nullptr;
}

PrinterPage Win32Printer::GetDeviceCaps() {
  const runtime::FloatingPointKeeper keeper;
  return {.width_px = ::GetDeviceCaps(device_, HORZRES),
          .height_px = ::GetDeviceCaps(device_, VERTRES),
          .dots_per_inch = ::GetDeviceCaps(device_, LOGPIXELSY)};
}

bool Win32Printer::StartDocA(const std::string& title) {
  const runtime::FloatingPointKeeper keeper;
  DOCINFOA document{};
  document.cbSize = sizeof document;
  document.lpszDocName = title.c_str();
  return ::StartDocA(device_, &document) > 0;
}

bool Win32Printer::StartPage() {
  const runtime::FloatingPointKeeper keeper;
  text_->PageStarted();
  return ::StartPage(device_) > 0;
}

bool Win32Printer::EndPage() {
  const runtime::FloatingPointKeeper keeper;
  return ::EndPage(device_) > 0;
}

bool Win32Printer::EndDoc() {
  const runtime::FloatingPointKeeper keeper;
  return ::EndDoc(device_) > 0;
}

void Win32Printer::AbortDoc() {
  const runtime::FloatingPointKeeper keeper;
  ::AbortDoc(device_);
}

}  // namespace qdix::os::win32
