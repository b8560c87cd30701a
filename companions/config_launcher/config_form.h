// The program: owns the window and everything that works on it, and controls reading and saving.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "config_launcher/browse.h"
#include "config_launcher/config_screen.h"
#include "config_launcher/config_system.h"
#include "config_launcher/editor_boxes.h"
#include "config_launcher/entry_list.h"
#include "config_launcher/list_file.h"
#include "os/file_dialogs.h"
#include "ui/application.h"

namespace qdix::config_launcher {

class ConfigForm {
 public:
  /// System and dialogs must outlive this object.
  ConfigForm(const ConfigSystem& system, os::FileDialogs& dialogs);
  ConfigForm(const ConfigForm&) = delete;
  ConfigForm& operator=(const ConfigForm&) = delete;
  ~ConfigForm() = default;

  /// Reads the list, shows the window and reports problems with the file. If another copy is running, or the
  /// list exists but cannot be read, unloads the window instead.
  void Start();

  /// The Windows session is about to end. Asks whether to save a list that is not saved. Returning false
  /// keeps the session going.
  [[nodiscard]] bool MaySessionEnd();
  /// The Windows session ends. Unloads the window without asking or writing anything.
  void EndSession();

  /// The window was activated while minimised. `former_thread` is the thread whose window was active before;
  /// 0 if Windows does not say. Restores the window if that thread is Q-DIX's, because Q-DIX can only bring
  /// it to the front. When the user goes to a minimised window, for example with its taskbar button, Windows
  /// restores it or shows its menu without this.
  void ActivatedMinimised(std::uint32_t former_thread);

  /// Files were dropped on the window.
  void FilesDropped(const std::vector<std::string>& paths) { entry_list_.AddFiles(paths); }

  [[nodiscard]] ui::Application& TheApplication() { return application_; }
  [[nodiscard]] ui::Form& Form() { return screen_.Window; }
  [[nodiscard]] ConfigScreen& Screen() { return screen_; }
  [[nodiscard]] const std::vector<launcher::LauncherEntry>& Entries() const { return entry_list_.Entries(); }

  base::Status cmdOK_Click();
  base::Status cmdCancel_Click();

 private:
  [[nodiscard]] bool MayClose();
  [[nodiscard]] bool HasUnsavedChanges() const;
  /// Returns false if the user does not want to save the list as it is, or if it could not be saved.
  [[nodiscard]] bool SaveList();
  void ReportUntrapped(const base::RuntimeError& error);

  const ConfigSystem system_;
  ui::EventDispatcher events_;
  ui::Application application_{kTitle};
  ConfigScreen screen_{events_};
  EditorBoxes boxes_;
  ListFile file_;
  EntryList entry_list_;
  Browse browse_;
};

}  // namespace qdix::config_launcher
