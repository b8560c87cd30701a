// The message boxes of a program, under its title. While one is open, timers and other handlers run.
#pragma once

#include <cstdint>
#include <string>

#include "base/runtime_error.h"
#include "os/dialogs.h"
#include "ui/application.h"

namespace qdix::host {

class Boxes {
 public:
  /// Both must outlive this object.
  Boxes(os::Dialogs& dialogs, const ui::Application& application)
      : dialogs_(dialogs), application_(application) {}

  /// Shows a message without an icon.
  void Show(const std::string& message) { Ask(message, os::kMbOk); }
  /// Shows a message with the exclamation mark.
  void Warn(const std::string& message) { Ask(message, os::kMbOk | os::kMbIconExclamation); }
  /// Shows an error that no handler traps.
  void ShowUntrapped(const base::RuntimeError& error) {
    Ask(base::UntrappedErrorText(error), os::kMbOk | os::kMbIconStop);
  }

  /// True if the user answers Yes. `flags` are the icon and the default button.
  [[nodiscard]] bool Agrees(const std::string& question, std::uint32_t flags = 0) {
    return Ask(question, os::kMbYesNo | flags) == os::kIdYes;
  }

  /// Shows any box and returns the answer, as os::Dialogs does.
  int Ask(const std::string& text, std::uint32_t flags) {
    return dialogs_.MessageBoxA(text, application_.Title(), flags);
  }

  /// True once the Windows session is ending: nothing may be asked any more.
  [[nodiscard]] bool SessionIsEnding() const { return application_.SessionIsEnding(); }

 private:
  os::Dialogs& dialogs_;
  const ui::Application& application_;
};

}  // namespace qdix::host
