// The shipped program, seen and driven from outside: its windows by the names of their controls, its memory,
// its message boxes. Conditions are polled with a deadline; nothing sleeps and hopes.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace qdix::e2e {

inline constexpr int kDeadlineMs = 30000;

/// Asks until the answer is true; false when the deadline passes first.
bool Eventually(const std::function<bool()>& condition, int deadline_ms = kDeadlineMs);

struct MessageBox {
  HWND window = nullptr;
  std::string title;
  std::string text;
};

class ShippedProgram {
 public:
  ShippedProgram() = default;
  ShippedProgram(const ShippedProgram&) = delete;
  ShippedProgram& operator=(const ShippedProgram&) = delete;
  /// Ends the process where it still runs.
  ~ShippedProgram();

  /// Starts the program under test; false when the system refuses.
  bool Start();
  /// Attaches to the copy that runs already; false when there is none.
  bool Attach();
  [[nodiscard]] bool WaitForWindow();
  [[nodiscard]] bool IsRunning() const;
  /// The exit code once the process has ended within the deadline; -1 otherwise.
  [[nodiscard]] int WaitForExit(int deadline_ms = kDeadlineMs) const;

  [[nodiscard]] HWND MainWindow() const;
  /// The hidden window that carries the application's title.
  [[nodiscard]] HWND ApplicationWindow() const;
  [[nodiscard]] std::string Caption() const;
  [[nodiscard]] HWND Control(const std::string& name) const;
  [[nodiscard]] std::string Text(const std::string& name) const;
  [[nodiscard]] bool IsEnabled(const std::string& name) const;
  [[nodiscard]] RECT ScreenRect(const std::string& name) const;

  /// Opens the tab that the control stands on, as a click on its tab does.
  void OpenTab(int tab) const;
  /// Presses a button, a check box or an option as its window reports a click.
  void Press(const std::string& name) const;
  /// Presses with the real pointer.
  void PressWithPointer(const std::string& name) const;
  /// Picks a row of a list box by its text, with its notification.
  [[nodiscard]] bool Choose(const std::string& name, const std::string& text) const;
  /// True where the list box has this row selected. Asked by index: Wine mangles the text of a row on its way
  /// between processes.
  [[nodiscard]] bool HasSelected(const std::string& name, const std::string& text) const;
  void Close() const;

  /// Sizes of the private committed allocations that are at least this large, in bytes, whole pages.
  [[nodiscard]] std::vector<std::uint64_t> CommittedBlocks(std::uint64_t at_least_bytes) const;
  [[nodiscard]] std::uint64_t CommittedBytes() const;

  [[nodiscard]] std::vector<MessageBox> MessageBoxes() const;
  /// Presses OK in the boxes that are open, and returns what they said.
  std::vector<std::string> AnswerBoxes() const;

 private:
  HANDLE process_ = nullptr;
  DWORD process_id_ = 0;
};

/// The text of a window of any process.
[[nodiscard]] std::string TextOf(HWND window);

/// Saves a picture of the screen as build/photos/<name>.png.
bool Photograph(const std::string& name);

}  // namespace qdix::e2e
