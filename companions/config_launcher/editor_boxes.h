// Shows the program's questions and messages under its title. While one of them or a dialog is open, the
// window must not be closed from outside: the answer would come too late.
#pragma once

#include <string>

#include "host/boxes.h"
#include "ui/form.h"

namespace qdix::config_launcher {

class EditorBoxes {
 public:
  /// Counts a message box or dialog as open during its lifetime.
  class Opened {
   public:
    explicit Opened(EditorBoxes& boxes) : boxes_(boxes) { ++boxes_.open_; }
    Opened(const Opened&) = delete;
    Opened& operator=(const Opened&) = delete;
    ~Opened() { --boxes_.open_; }

   private:
    EditorBoxes& boxes_;
  };

  EditorBoxes(os::Dialogs& dialogs, const ui::Application& application, const ui::Form& form)
      : boxes_(dialogs, application), form_(form) {}

  [[nodiscard]] bool AnyIsOpen() const { return open_ != 0; }

  /// Returns true if the user answers Yes and the window has not unloaded. The default button is No.
  [[nodiscard]] bool Ask(const std::string& question) {
    const Opened opened(*this);
    return boxes_.Agrees(question, os::kMbIconQuestion | os::kMbDefaultButton2) && !form_.Unloaded();
  }

  enum class Choice : unsigned char {
    kYes,
    kNo,
    kCancel,
  };

  /// Returns the user's answer. The default button is Yes. Returns kNo if the box could not be shown.
  [[nodiscard]] Choice Choose(const std::string& question) {
    const Opened opened(*this);
    const int answer = boxes_.Ask(question, os::kMbYesNoCancel | os::kMbIconQuestion);
    if (answer == os::kIdCancel) return Choice::kCancel;
    return answer == os::kIdYes ? Choice::kYes : Choice::kNo;
  }

  void Show(const std::string& message) {
    const Opened opened(*this);
    boxes_.Warn(message);
  }

 private:
  host::Boxes boxes_;
  const ui::Form& form_;
  int open_ = 0;
};

}  // namespace qdix::config_launcher
