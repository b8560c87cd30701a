// The program: owns the window, what works on it, and the order from reading to writing.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "config_launcher/boxes.h"
#include "config_launcher/browse.h"
#include "config_launcher/config_screen.h"
#include "config_launcher/entry_list.h"
#include "config_launcher/list_file.h"
#include "os/file_dialogs.h"
#include "os/system.h"
#include "ui/application.h"

namespace qdix::config_launcher {

class ConfigForm {
 public:
  /// System and dialogs must outlive this object.
  ConfigForm(const os::System& system, os::FileDialogs& dialogs);
  ConfigForm(const ConfigForm&) = delete;
  ConfigForm& operator=(const ConfigForm&) = delete;
  ~ConfigForm() = default;

  /// Reads the list, shows the window, and says what is not as it should be. Where another copy runs, or the
  /// list is there and cannot be read, the window unloads instead.
  void Start();

  /// The Windows session is about to end: asks what becomes of a list that is not saved. False keeps the
  /// session going.
  [[nodiscard]] bool MaySessionEnd();
  /// The Windows session ends: nothing more is asked or written, and the window unloads.
  void EndSession();

  /// The window became the active one while it is minimised, in place of one of `former_thread`, which is 0
  /// where the system does not tell. Restores it if that is Q-DIX, which can only bring it to the front. The
  /// user's own ways to a minimised window, like its button on the taskbar, restore it or show its menu
  /// without this.
  void ActivatedMinimised(std::uint32_t former_thread);

  /// Files were dropped on the window.
  void FilesDropped(const std::vector<std::string>& paths) { entry_list_.AddFiles(paths); }

  [[nodiscard]] ui::Application& TheApplication() { return application_; }
  [[nodiscard]] ui::Form& Window() { return screen_.Window; }
  [[nodiscard]] ConfigScreen& Screen() { return screen_; }
  [[nodiscard]] const std::vector<launcher::LauncherEntry>& Entries() const { return entry_list_.Entries(); }

  /// "OK".
  base::Status cmdOK_Click();
  /// "Cancel".
  base::Status cmdCancel_Click();

 private:
  [[nodiscard]] bool MayClose();
  [[nodiscard]] bool LosesSomething() const;
  /// False where the user does not want to save the list as it is, or it could not be saved.
  [[nodiscard]] bool SaveList();
  void ReportUntrapped(const base::RuntimeError& error);

  const os::System& system_;
  ui::EventDispatcher events_;
  ui::Application application_{kTitle};
  ConfigScreen screen_{events_};
  Boxes boxes_;
  ListFile file_;
  EntryList entry_list_;
  Browse browse_;
};

}  // namespace qdix::config_launcher
