// The application as Windows sees it: its title belongs to a hidden window that owns the program's windows.
#pragma once

#include <string>
#include <string_view>

#include "base/callback.h"

namespace qdix::ui {

class Application {
 public:
  explicit Application(std::string_view title) : title_(title) {}

  /// Title of the hidden window and of every message box without a title of its own.
  [[nodiscard]] const std::string& Title() const { return title_; }

  void SetTitle(std::string_view title) {
    title_ = title;
    if (OnTitleChanged) OnTitleChanged();
  }

  /// True once the Windows session is ending. From then on nothing may ask the user; whatever would need an
  /// answer is dropped.
  [[nodiscard]] bool SessionIsEnding() const { return session_is_ending_; }
  void SetSessionIsEnding() { session_is_ending_ = true; }

  base::Callback<void()> OnTitleChanged;

 private:
  std::string title_;
  bool session_is_ending_ = false;
};

}  // namespace qdix::ui
