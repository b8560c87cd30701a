// What the user of the simulated machine sees: windows of other programs, message boxes and the notification
// area.
#pragma once

#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "os/dialogs.h"
#include "os/shell.h"
#include "os/simulated/call_log.h"
#include "os/simulated/simulated_files.h"
#include "os/top_level_windows.h"

namespace qdix::os::simulated {

class SimulatedWindows final : public Windows {
 public:
  explicit SimulatedWindows(CallLog& log) : log_(log) {}

  WindowHandle FindWindowA(const char* window_class, const char* title) override;
  WindowHandle FindWindowExA(WindowHandle after, const char* title) override;
  WindowHandle GetWindow(WindowHandle window, std::uint32_t relation) override;
  /// Each window belongs to a thread of its own.
  std::uint32_t GetWindowThreadProcessId(WindowHandle window) override;
  bool OpenIcon(WindowHandle window) override;
  bool ShowWindow(WindowHandle window, int way) override;
  bool SetForegroundWindow(WindowHandle window) override;
  /// A window closes at once when it receives kWmClose.
  bool PostMessageA(WindowHandle window, std::uint32_t message) override;

  /// Opens a window in front of all others.
  WindowHandle Open(const std::string& window_class, const std::string& title);
  void Close(WindowHandle window);
  void SetTitle(WindowHandle window, const std::string& title);
  void Minimise(WindowHandle window);
  void PlaceDirectlyBehind(WindowHandle window, WindowHandle front);
  [[nodiscard]] bool IsMinimised(WindowHandle window) const;
  void Hide(WindowHandle window);
  [[nodiscard]] bool IsShown(WindowHandle window) const;
  [[nodiscard]] WindowHandle Foreground() const { return foreground_; }

 private:
  struct Window {
    WindowHandle handle;
    std::string window_class;
    std::string title;
    bool is_minimised = false;
    bool is_shown = true;
  };
  [[nodiscard]] std::vector<Window>::iterator Find(WindowHandle window);

  CallLog& log_;
  /// The front window first.
  std::vector<Window> windows_;
  WindowHandle next_handle_ = 0x1000;
  WindowHandle foreground_ = 0;
};

struct Box {
  std::string text;
  std::string title;
  std::uint32_t flags;
};

class SimulatedDialogs final : public Dialogs {
 public:
  explicit SimulatedDialogs(CallLog& log) : log_(log) {}

  int MessageBoxA(const std::string& text, const std::string& title, std::uint32_t flags) override;

  /// Sets the answers of the next message boxes, in order. Later boxes get their default button.
  void AnswerNext(int answer) { answers_.push_back(answer); }
  void WhileOpen(std::function<void()> action) { while_open_ = std::move(action); }
  /// Ends the program: an open box closes without an answer, and no further box opens.
  void End() { ended_ = true; }
  [[nodiscard]] const std::vector<Box>& Boxes() const { return boxes_; }
  void ClearBoxes() { boxes_.clear(); }

 private:
  CallLog& log_;
  std::vector<Box> boxes_;
  std::vector<int> answers_;
  std::function<void()> while_open_;
  bool ended_ = false;
};

struct TrayRequest {
  std::uint32_t request;
  NotifyIconData data;
  /// The tooltip up to its NUL.
  std::string tip;
};

class SimulatedShell final : public Shell {
 public:
  SimulatedShell(CallLog& log, const SimulatedFiles& files) : log_(log), files_(files) {}

  bool Shell_NotifyIconA(std::uint32_t request, const NotifyIconData& data) override;
  /// Opens every file that exists.
  bool ShellExecuteA(const char* verb, const std::string& path, int show) override;

  [[nodiscard]] const std::vector<TrayRequest>& Requests() const { return requests_; }
  void ClearRequests() { requests_.clear(); }
  /// Ends the taskbar and removes every icon with it.
  void ClearIcons() { icons_.clear(); }
  [[nodiscard]] int IconCount() const { return static_cast<int>(icons_.size()); }
  /// The verb, path and show command of each opened file.
  [[nodiscard]] const std::vector<std::string>& OpenedFiles() const { return opened_files_; }

 private:
  CallLog& log_;
  const SimulatedFiles& files_;
  std::vector<TrayRequest> requests_;
  std::vector<std::string> opened_files_;
  /// Owner and number of each icon.
  std::set<std::pair<WindowHandle, std::uint32_t>> icons_;
};

}  // namespace qdix::os::simulated
