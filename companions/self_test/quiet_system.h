// Stand-ins for everything that could be seen or heard outside the self-test: message boxes, the notification
// area, other programs, the shell's folders, the end of the session. Each refuses or does nothing.
#pragma once

#include <optional>
#include <string>

#include "os/clipboard.h"
#include "os/dialogs.h"
#include "os/file_dialogs.h"
#include "os/printer.h"
#include "os/processes.h"
#include "os/session.h"
#include "os/shell.h"
#include "os/shell_files.h"
#include "os/top_level_windows.h"

namespace qdix::self_test {

/// Shows no box and agrees to nothing; keeps the texts.
class QuietDialogs final : public os::Dialogs {
 public:
  int MessageBoxA(const std::string& text, const std::string& title, std::uint32_t flags) override;

  /// Returns the texts since the last call, separated by slashes, and clears them.
  [[nodiscard]] std::string TakeTexts();

 private:
  std::string texts_;
};

/// A notification area that accepts every icon and shows none.
class QuietShell final : public os::Shell {
 public:
  bool Shell_NotifyIconA(std::uint32_t /*request*/, const os::NotifyIconData& /*data*/) override {
    return true;
  }
  bool ShellExecuteA(const char* /*verb*/, const std::string& /*path*/, int /*show*/) override {
    return false;
  }
};

class QuietShellFiles final : public os::ShellFiles {
 public:
  [[nodiscard]] std::string SpecialFolder(int /*number*/) override { return {}; }
  bool SHFileOperationA(std::uint32_t /*operation*/, const std::string& /*from*/, const std::string& /*to*/,
                        std::uint16_t /*flags*/) override {
    return false;
  }
  void SHAddToRecentDocs(std::uint32_t /*kind*/, const std::string& /*path*/) override {}
  [[nodiscard]] std::optional<os::Shortcut> ReadShortcut(const std::string& /*path*/) override {
    return std::nullopt;
  }
  [[nodiscard]] bool WriteShortcut(const std::string& /*path*/, const os::Shortcut& /*shortcut*/) override {
    return false;
  }
};

/// Pretends to be the first copy of a program in a folder of its own. Reports success for starting a program
/// without starting it: a failure would be an error in the program under test.
class QuietProcesses final : public os::Processes {
 public:
  explicit QuietProcesses(const std::string& program_path) : program_path_(program_path) {}

  [[nodiscard]] bool MutexExistedBefore(const char* /*name*/) override { return false; }
  [[nodiscard]] std::string ModuleFileName() override { return program_path_; }
  [[nodiscard]] std::int32_t CreateProcessA(const std::string& /*command_line*/) override {
    return os::kErrorSuccess;
  }
  [[nodiscard]] bool SetCurrentDirectoryA(const std::string& /*folder*/) override { return false; }

 private:
  const std::string program_path_;
};

class QuietWindows final : public os::Windows {
 public:
  [[nodiscard]] os::WindowHandle FindWindowA(const char* /*window_class*/, const char* /*title*/) override {
    return 0;
  }
  [[nodiscard]] os::WindowHandle FindWindowExA(os::WindowHandle /*after*/, const char* /*title*/) override {
    return 0;
  }
  [[nodiscard]] os::WindowHandle GetWindow(os::WindowHandle /*window*/, std::uint32_t /*relation*/) override {
    return 0;
  }
  [[nodiscard]] std::uint32_t GetWindowThreadProcessId(os::WindowHandle /*window*/) override { return 0; }
  bool OpenIcon(os::WindowHandle /*window*/) override { return false; }
  bool ShowWindow(os::WindowHandle /*window*/, int /*way*/) override { return false; }
  bool SetForegroundWindow(os::WindowHandle /*window*/) override { return false; }
  bool PostMessageA(os::WindowHandle /*window*/, std::uint32_t /*message*/) override { return false; }
};

class QuietSession final : public os::Session {
 public:
  bool ExitWindowsEx(std::uint32_t /*flags*/, std::uint32_t /*reserved*/) override { return false; }
};

class QuietClipboard final : public os::Clipboard {
 public:
  [[nodiscard]] bool SetClipboardData(const std::string& /*text*/) override { return false; }
};

class QuietFileDialogs final : public os::FileDialogs {
 public:
  [[nodiscard]] std::string GetOpenFileNameA(const os::OpenFileRequest& /*question*/) override { return {}; }
  [[nodiscard]] std::string SHBrowseForFolderA(const std::string& /*title*/,
                                               const std::string& /*folder*/) override {
    return {};
  }
};

/// There is no printer, so only PrintDlgA is ever called.
class QuietPrinter final : public os::Printer {
 public:
  explicit QuietPrinter(os::TextDevice& device) : device_(device) {}

  [[nodiscard]] Choice PrintDlgA() override { return Choice::kCancelled; }
  void DeleteDC() override {}
  [[nodiscard]] os::PrinterPage GetDeviceCaps() override { return {}; }
  [[nodiscard]] os::TextDevice& Device() override { return device_; }
  [[nodiscard]] bool StartDocA(const std::string& /*title*/) override { return false; }
  [[nodiscard]] bool StartPage() override { return false; }
  [[nodiscard]] bool EndPage() override { return false; }
  [[nodiscard]] bool EndDoc() override { return false; }
  void AbortDoc() override {}

 private:
  os::TextDevice& device_;
};

}  // namespace qdix::self_test
