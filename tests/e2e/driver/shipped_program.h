// A shipped program, observed and driven from outside: its process, its windows by the names of their
// controls, its memory and its message boxes.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tests/e2e/driver/message_boxes.h"
#include "tests/e2e/driver/polling.h"
#include "tests/e2e/driver/process_resources.h"
#include "tests/e2e/driver/program_facts.h"

namespace qdix::e2e {

class ShippedProgram {
 public:
  /// Drives QDIX.exe by default.
  explicit ShippedProgram(ProgramFacts facts = Qdix()) : facts_(std::move(facts)) {}
  ShippedProgram(const ShippedProgram&) = delete;
  ShippedProgram& operator=(const ShippedProgram&) = delete;
  /// Kills a program that was started here and still runs; leaves alone a program that this object was only
  /// attached to.
  ~ShippedProgram();

  /// Starts the program under test with these arguments, also again after its end; returns false if the
  /// system refuses.
  [[nodiscard]] bool Start(const std::string& arguments = {});
  /// Starts it as a shortcut with a show command (SW_...) does.
  [[nodiscard]] bool StartShown(WORD show_command);
  /// Attaches to the running copy; returns false if there is none.
  [[nodiscard]] bool Attach();
  /// Attaches to a copy that another program was made to start, and treats it as started here.
  [[nodiscard]] bool Adopt();
  void Kill();
  [[nodiscard]] bool IsRunning() const;
  /// Returns the exit code once the process has ended within the deadline; -1 otherwise.
  [[nodiscard]] int WaitForExit(int deadline_ms = kDeadlineMs) const;

  /// Works like Eventually(), and answers the report of an implausible reading in passing.
  [[nodiscard]] bool Await(const std::function<bool()>& condition, int deadline_ms = kDeadlineMs) const;
  /// Waits until the main window is shown.
  [[nodiscard]] bool WaitForWindow() const;
  /// Waits until the caption shows the available memory: the first refresh has run.
  [[nodiscard]] bool WaitForFirstReading();

  [[nodiscard]] HWND MainWindow() const;
  /// Returns the hidden window that carries the application's title.
  [[nodiscard]] HWND ApplicationWindow() const;
  [[nodiscard]] std::string Caption() const;
  /// True while the notification area has the icon of the window that WaitForWindow() found; also after the
  /// program's end.
  [[nodiscard]] bool HasIcon() const;
  /// Removes that icon without the program's knowledge; returns false if there was none.
  [[nodiscard]] bool TakeIcon() const;
  [[nodiscard]] bool ShowsToolTip() const;
  /// Returns the open pop-up menus.
  [[nodiscard]] std::vector<HWND> OpenMenus() const;

  // Controls are identified by the names on their screens. An unknown name ends the test program, and so does
  // a control on a tab that was never open, because its window is created at the first opening: a check of a
  // missing control could never fail. A control that was never created counts as not visible.
  [[nodiscard]] bool HasControl(const std::string& name) const { return facts_.map.Find(name) != nullptr; }
  [[nodiscard]] const std::vector<ControlAddress>& Controls() const { return facts_.map.All(); }
  [[nodiscard]] HWND Control(const std::string& name) const;
  /// Returns how many controls of this tab have a window; -1 means the controls on no tab.
  [[nodiscard]] int WindowsOnTab(int tab) const;
  /// Returns the text of the control's window, with access keys marked by "&".
  [[nodiscard]] std::string Text(const std::string& name) const;
  [[nodiscard]] bool IsEnabled(const std::string& name) const;
  [[nodiscard]] bool IsVisible(const std::string& name) const;
  [[nodiscard]] bool IsChecked(const std::string& name) const;
  [[nodiscard]] RECT ScreenRect(const std::string& name) const;
  /// Returns the name of the control that has the keyboard; empty if none has.
  [[nodiscard]] std::string FocusedControl() const;

  /// Opens a tab and waits until it is open. A box that this opens delays it.
  void OpenTab(int tab) const;
  /// Requests a tab without waiting, for a tab that opens a box.
  void BeginToOpenTab(int tab) const;
  [[nodiscard]] int OpenedTab() const;
  /// Presses a button, a check box or an option by message.
  void Press(const std::string& name) const;
  /// Selects a row of a list box or drop-down list by its text, and sends the notification.
  [[nodiscard]] bool Choose(const std::string& name, const std::string& text) const;
  /// True if this row of the list is selected. Compares indexes: Wine mangles the text of a row on its way
  /// between processes.
  [[nodiscard]] bool HasSelected(const std::string& name, const std::string& text) const;
  void Close() const;

  [[nodiscard]] std::vector<std::uint64_t> CommittedBlocks(std::uint64_t at_least_bytes) const;
  [[nodiscard]] std::uint64_t CommittedBytes() const;
  [[nodiscard]] ProcessResources Resources() const { return CountResources(process_, process_id_); }
  [[nodiscard]] HANDLE Process() const { return process_; }

  [[nodiscard]] std::vector<MessageBox> MessageBoxes() const { return MessageBoxesOf(process_id_); }
  /// Presses OK in the open boxes, and returns their texts.
  std::vector<std::string> AnswerBoxes() const;

 private:
  [[nodiscard]] bool StartWith(const std::string& arguments, STARTUPINFOA& startup);
  [[nodiscard]] bool Open(DWORD access);
  [[nodiscard]] HWND FirstWindow(const char* window_class) const;
  [[nodiscard]] const ControlAddress& AddressOf(const std::string& name) const;
  /// Returns null if the window has not been created.
  [[nodiscard]] HWND WindowOf(const ControlAddress& address) const;

  const ProgramFacts facts_;
  HANDLE process_ = nullptr;
  DWORD process_id_ = 0;
  HWND icon_owner_ = nullptr;
  bool is_ours_ = false;
};

}  // namespace qdix::e2e
