// A machine whose system.ini and registry the tuning tabs may change. Each test gets a small system.ini and
// the templates of a Windows 98 machine; the real ones are restored afterwards. Restarts are detected, not
// performed.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "tests/e2e/driver/hand.h"
#include "tests/e2e/driver/restart_watch.h"
#include "tests/e2e/driver/system_ini_keeper.h"
#include "tests/e2e/session.h"

namespace qdix::e2e {

inline const KeyPath kOwnTemplate{HKEY_LOCAL_MACHINE,
                                  "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\FS Templates\\Quondix"};

inline constexpr const char* kRestartQuestion =
    "You must restart your computer before the new settings take effect.\r\n\r\n"
    "Do you want to restart your computer now?";

class TuningSession : public Session {
 protected:
  void SetUp() override;
  /// Fails the test if it requested a restart without expecting one.
  void TearDown() override;

  /// Starts the program with this tab open and the window in front, and watches for restarts of the machine.
  /// May be called again after CloseProgram().
  void StartOnTab(int tab);

  /// Makes system.ini hold these bytes before the program starts.
  static void SetSystemIni(const std::string& bytes) { SetWindowsFile(kSystemIni, bytes); }
  /// Windows 95 writes a program's changes at its end, or at a restart. Ask after that.
  [[nodiscard]] static std::string SystemIni() { return WindowsFile(kSystemIni).value_or("(no file)"); }

  /// Returns what a user reads on a control, without the marks of access keys.
  [[nodiscard]] std::string Shown(const std::string& name) const;

  /// Waits until a control, a file or the registry shows the effect of a user's action.
  [[nodiscard]] bool Becomes(const std::function<bool()>& condition) const {
    return program.Await(condition);
  }

  /// Waits for a box, checks its text, and leaves it open.
  void ExpectBox(const std::string& text) const;
  /// Does the same and presses one of its buttons.
  void Answer(const std::string& text, int button) const;
  /// Returns the number of the button that Enter would press in the open box.
  [[nodiscard]] int ButtonWithKeyboard() const;

  void ExpectKeyboardOn(const std::string& name) const;
  /// Presses an access key and expects a control to get the keyboard.
  void GoTo(char access_key, const std::string& name) const;

  /// Takes the picture with the pointer on the caption, where no tool tip covers anything.
  void PhotographTab(const std::string& name) const;

  /// Expects the program to have requested exactly one restart of the machine and to end with its icon gone.
  void ExpectRestartAndEnd();

 private:
  SystemIniKeeper keeper_;
  std::optional<RestartWatch> restarts_;
  std::uint32_t expected_restarts_ = 0;
};

}  // namespace qdix::e2e
