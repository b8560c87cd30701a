// The real machine of the contract tests: the forwarding layer, and a user who acts through real windows.
#pragma once

#include <windows.h>

#include "os/win32/gdi_text_device.h"
#include "os/win32/win32_clipboard.h"
#include "os/win32/win32_screen.h"
#include "os/win32/win32_system.h"
#include "tests/contract/machine.h"
#include "ui/win32/owned.h"

namespace qdix::contract {

class Win32ContractMachine final : public Machine {
 public:
  Win32ContractMachine();
  Win32ContractMachine(const Win32ContractMachine&) = delete;
  Win32ContractMachine& operator=(const Win32ContractMachine&) = delete;
  ~Win32ContractMachine() override;

  const os::System& GetSystem() override { return system_.GetSystem(); }
  [[nodiscard]] os::win32::Win32System& GetWin32System() { return system_; }
  /// Returns a window that runs an action posted to it; never shown.
  [[nodiscard]] HWND HiddenWindow() const { return hidden_; }

  os::WindowHandle OpenWindow(const std::string& window_class, const std::string& title) override;
  void CloseWindow(os::WindowHandle window) override;
  void PlaceDirectlyBehind(os::WindowHandle window, os::WindowHandle front) override;
  void Minimise(os::WindowHandle window) override;
  bool IsMinimised(os::WindowHandle window) override;
  void Hide(os::WindowHandle window) override;
  bool IsShown(os::WindowHandle window) override;
  void DoInNextPump(std::function<void()> action) override;
  void AnswerNextBox(int button) override;
  void StopInNextBox() override;
  std::vector<ShownBox> Boxes() override { return boxes_; }
  void LetTimePass(int ms) override;
  os::Clipboard& TheClipboard() override { return clipboard_; }
  os::Screen& TheScreen() override { return screen_; }
  os::TextDevice& TheTextDevice() override { return text_device_; }
  std::string ClipboardText() override;
  void HoldClipboard() override;
  void ReleaseClipboard() override;
  void DeleteRegistryTree(os::KeyHandle root, const std::string& path) override;

  /// Runs an action on the next box once it is open. The action must close the box.
  void DoToNextBox(std::function<void(HWND)> action);

 private:
  static LRESULT CALLBACK HiddenProcedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  void LookForBox();

  os::win32::Win32System system_;
  HWND hidden_ = nullptr;
  os::win32::Win32Clipboard clipboard_;
  os::win32::Win32Screen screen_;
  ui::win32::OwnedMemoryDevice device_{CreateCompatibleDC(nullptr)};
  os::win32::GdiTextDevice text_device_{device_.get(), os::win32::kScreenFaces};
  std::vector<HWND> windows_;
  std::vector<std::string> classes_;
  std::vector<std::function<void(HWND)>> hands_;
  std::vector<ShownBox> boxes_;
};

}  // namespace qdix::contract
