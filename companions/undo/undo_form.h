// The program: owns the window and everything that works on it, and controls the order of start-up.
#pragma once

#include "host/boxes.h"
#include "tuning/restart.h"
#include "ui/application.h"
#include "undo/entry_list.h"
#include "undo/settings.h"
#include "undo/undo_screen.h"
#include "undo/undo_system.h"
#include "undo/whole_file.h"

namespace qdix::undo {

class UndoForm {
 public:
  explicit UndoForm(const UndoSystem& system);
  UndoForm(const UndoForm&) = delete;
  UndoForm& operator=(const UndoForm&) = delete;
  ~UndoForm() = default;

  /// Reads the previous and current values and shows the window.
  void Start();

  /// The Windows session ends. Unloads the window without asking or writing anything.
  void EndSession();

  [[nodiscard]] ui::Application& TheApplication() { return application_; }
  [[nodiscard]] ui::Form& Form() { return screen_.Window; }
  [[nodiscard]] UndoScreen& Screen() { return screen_; }

  base::Status cmdClose_Click();

 private:
  void Read();
  void ReportUntrapped(const base::RuntimeError& error);

  const UndoSystem system_;
  ui::EventDispatcher events_;
  ui::Application application_{"Q-DIX Undo"};
  host::Boxes boxes_;
  UndoScreen screen_{events_};
  Settings settings_;
  tuning::Restart restart_;
  EntryList entry_list_;
  WholeFile whole_file_;
};

}  // namespace qdix::undo
