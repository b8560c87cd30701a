// Implements `Printer` on Windows. Not part of the `System` that every program gets.
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
  ~Win32Printer();

  [[nodiscard]] Choice PrintDlgA() override;
  void DeleteDC() override;
  [[nodiscard]] PrinterPage GetDeviceCaps() override;
  [[nodiscard]] TextDevice& Device() override { return *text_; }
  [[nodiscard]] bool StartDocA(const std::string& title) override;
  [[nodiscard]] bool StartPage() override;
  [[nodiscard]] bool EndPage() override;
  [[nodiscard]] bool EndDoc() override;
  void AbortDoc() override;

  /// Sets the window that is disabled while the dialog is open; null for none.
  void SetOwner(HWND window) { owner_ = window; }
  /// Uses this device in place of one from the dialog. Takes ownership and deletes it.
  void Open(HDC device);

 private:
  HWND owner_ = nullptr;
  HDC device_ = nullptr;
  std::optional<GdiTextDevice> text_;
};

}  // namespace qdix::os::win32
