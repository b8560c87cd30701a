// A shipped program, seen and driven from outside: its life, its windows by the names of their controls,
// its memory and its message boxes.
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
  /// QDIX.exe unless it is said otherwise.
  explicit ShippedProgram(ProgramFacts facts = Qdix()) : facts_(std::move(facts)) {}
  ShippedProgram(const ShippedProgram&) = delete;
  ShippedProgram& operator=(const ShippedProgram&) = delete;
  /// Kills a program that was started and still runs; leaves alone one that was only attached to.
  ~ShippedProgram();

  /// Starts the program under test with these arguments, also once more after its end; false when the system
  /// refuses.
  [[nodiscard]] bool Start(const std::string& arguments = {});
  /// The same as a shortcut does that says how the window is to be shown (SW_...).
  [[nodiscard]] bool StartShown(WORD show_command);
  /// Attaches to the copy that runs already; false when there is none.
  [[nodiscard]] bool Attach();
  /// The same with a copy that another program was made to start: it counts as started here.
  [[nodiscard]] bool Adopt();
  void Kill();
  [[nodiscard]] bool IsRunning() const;
  /// The exit code once the process has ended within the deadline; -1 otherwise.
  [[nodiscard]] int WaitForExit(int deadline_ms = kDeadlineMs) const;

  /// Eventually(), with the report of an implausible reading answered on the way.
  [[nodiscard]] bool Await(const std::function<bool()>& condition, int deadline_ms = kDeadlineMs) const;
  /// Waits until the main window is shown.
  [[nodiscard]] bool WaitForWindow() const;
  /// Waits until the caption shows available memory: the first refresh has run.
  [[nodiscard]] bool WaitForFirstReading();

  [[nodiscard]] HWND MainWindow() const;
  /// The hidden window that carries the application's title.
  [[nodiscard]] HWND ApplicationWindow() const;
  [[nodiscard]] std::string Caption() const;
  /// True while the notification area has the icon of the window that was waited for; also after its end.
  [[nodiscard]] bool HasIcon() const;
  /// Takes that icon away without the program's knowledge; false where there was none.
  [[nodiscard]] bool TakeIcon() const;
  [[nodiscard]] bool ShowsToolTip() const;
  /// The pop-up menus that are open.
  [[nodiscard]] std::vector<HWND> OpenMenus() const;

  // A control is asked for by the name that its screen gives it. One that no screen has ends the test
  // program, and so does one on a tab that was never open, whose window is made with the first opening: a
  // check of a control that is not there could not fail. What was never made counts as not visible.
  [[nodiscard]] bool HasControl(const std::string& name) const { return facts_.map.Find(name) != nullptr; }
  [[nodiscard]] const std::vector<ControlAddress>& Controls() const { return facts_.map.All(); }
  [[nodiscard]] HWND Control(const std::string& name) const;
  /// How many of the controls of this tab, or with -1 of those on no tab, have a window.
  [[nodiscard]] int WindowsOnTab(int tab) const;
  /// The text of its window: access keys are marked with "&".
  [[nodiscard]] std::string Text(const std::string& name) const;
  [[nodiscard]] bool IsEnabled(const std::string& name) const;
  [[nodiscard]] bool IsVisible(const std::string& name) const;
  [[nodiscard]] bool IsChecked(const std::string& name) const;
  [[nodiscard]] RECT ScreenRect(const std::string& name) const;
  /// Name of the control that has the keyboard; empty when none has.
  [[nodiscard]] std::string FocusedControl() const;

  /// Opens a tab and waits until it is open; a box that this opens holds it up.
  void OpenTab(int tab) const;
  /// Asks for a tab without waiting, for one that opens a box.
  void BeginToOpenTab(int tab) const;
  [[nodiscard]] int OpenedTab() const;
  /// Presses a button, a check box or an option by message.
  void Press(const std::string& name) const;
  /// Picks a row of a list box or drop-down list by its text, with its notification.
  [[nodiscard]] bool Choose(const std::string& name, const std::string& text) const;
  /// True where the list has this row selected. Asked by index: Wine mangles the text of a row on its way
  /// between processes.
  [[nodiscard]] bool HasSelected(const std::string& name, const std::string& text) const;
  void Close() const;

  [[nodiscard]] std::vector<std::uint64_t> CommittedBlocks(std::uint64_t at_least_bytes) const;
  [[nodiscard]] std::uint64_t CommittedBytes() const;
  [[nodiscard]] ProcessResources Resources() const { return CountResources(process_, process_id_); }
  [[nodiscard]] HANDLE Process() const { return process_; }

  [[nodiscard]] std::vector<MessageBox> MessageBoxes() const { return MessageBoxesOf(process_id_); }
  /// Presses OK in the boxes that are open, and returns what they said.
  std::vector<std::string> AnswerBoxes() const;

 private:
  [[nodiscard]] bool StartWith(const std::string& arguments, STARTUPINFOA& startup);
  [[nodiscard]] bool Open(DWORD access);
  [[nodiscard]] HWND FirstWindow(const char* window_class) const;
  [[nodiscard]] const ControlAddress& AddressOf(const std::string& name) const;
  /// Null where the window is not made.
  [[nodiscard]] HWND WindowOf(const ControlAddress& address) const;

  const ProgramFacts facts_;
  HANDLE process_ = nullptr;
  DWORD process_id_ = 0;
  HWND icon_owner_ = nullptr;
  bool is_ours_ = false;
};

}  // namespace qdix::e2e
