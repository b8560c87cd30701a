// The printer of the real system. Not part of the bundle that every program gets.
#pragma once

#include <windows.h>

#include <optional>

#include "os/printer.h"
#include "os/win32/gdi_text_device.h"

namespace qdix::os::win32 {

class Win32Printer final : public Printer {
 public:
  Win32Printer() = default;
  Win32Printer(const Win32Printer&) = delete;
  Win32Printer& operator=(const Win32Printer&) = delete;
  ~Win32Printer() override;

  [[nodiscard]] Choice PrintDlgA() override;
  void DeleteDC() override;
  [[nodiscard]] PrinterPage GetDeviceCaps() override;
  [[nodiscard]] TextDevice& Device() override { return *text_; }
  [[nodiscard]] bool StartDocA(const std::string& title) override;
  [[nodiscard]] bool StartPage() override;
  [[nodiscard]] bool EndPage() override;
  [[nodiscard]] bool EndDoc() override;
  void AbortDoc() override;

  /// The window that is disabled while the dialog is open; null for none.
  void SetOwner(HWND window) { owner_ = window; }
  /// Takes a device in place of one that was chosen in the dialog, and deletes it in the end.
  void Open(HDC device);

 private:
  HWND owner_ = nullptr;
  HDC device_ = nullptr;
  std::optional<GdiTextDevice> text_;
};

}  // namespace qdix::os::win32
