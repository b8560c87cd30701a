// The editor of the program list, on a simulated machine with a list of the test's choice.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "config_launcher/config_form.h"
#include "os/simulated/simulated_file_dialogs.h"
#include "os/simulated/simulated_machine.h"

namespace qdix::tests {

inline constexpr const char* kListPath = "C:\\Program Files\\QDIX\\launcher.dat";
inline constexpr const char* kListBackupPath = "C:\\Program Files\\QDIX\\launcher.bak";
inline constexpr const char* kListTemporaryPath = "C:\\Program Files\\QDIX\\launcher.tmp";

inline constexpr const char* kDiscardFields =
    "What you typed in the fields is not in the list. To put it there, answer No and press \"Add\" or "
    "\"Change\".\r\n\r\nDo you want to discard it?";
inline constexpr const char* kSaveWithoutFields =
    "What you typed in the fields is not in the list. To put it there, answer No and press \"Add\" or "
    "\"Change\".\r\n\r\nDo you want to save the list without it?";
inline constexpr const char* kCouldNotBeSaved =
    "The list of programs could not be saved.\r\n\r\nYour previous list has not been changed. Please make "
    "sure that the disk is neither full nor write-protected and that no other program has launcher.dat "
    "open, and try again.";
inline constexpr const char* kReadFromBackup =
    "An earlier save was interrupted. This list comes from the backup, launcher.bak.";

/// Returns the message about a list with one problem.
inline std::string OpeningMessage(const std::string& remark) {
  return "There are problems with the list of programs (launcher.dat):\r\n\r\n- " + remark +
         "\r\n\r\nThe file does not change until you save the list.";
}

using Entries = std::vector<launcher::LauncherEntry>;

inline std::string BytesOf(const Entries& entries) {
  std::string bytes;
  for (const launcher::LauncherEntry& entry : entries) bytes += launcher::RecordBytes(entry);
  return bytes;
}

/// Returns "Program 0", "Program 1"... with texts in all fields.
inline Entries SomeEntries(int count) {
  Entries entries;
  for (int i = 0; i < count; ++i) {
    const std::string number = std::to_string(i);
    entries.push_back({"Program " + number, "C:\\P" + number + ".EXE /x", "C:\\DIR" + number});
  }
  return entries;
}

class ConfigRig {
 public:
  ConfigRig() { machine.SetModuleFileName("C:\\Program Files\\QDIX\\configL.exe"); }
  explicit ConfigRig(const std::string& list) : ConfigRig() { machine.WriteFile(kListPath, list); }
  explicit ConfigRig(const Entries& entries) : ConfigRig(BytesOf(entries)) {}

  config_launcher::ConfigForm& Start() {
    form.emplace(machine.GetSystem(), dialogs);
    form->Start();
    return *form;
  }
  /// Ends the program and starts it again on the same machine.
  config_launcher::ConfigForm& Restart() {
    form->Form().Unload();
    machine.EndProcess();
    return Start();
  }
  [[nodiscard]] config_launcher::ConfigScreen& Screen() { return form->Screen(); }

  /// Replaces the texts of the three fields.
  void Type(const launcher::LauncherEntry& entry) {
    TypeInto(Screen().txtName, entry.name);
    TypeInto(Screen().txtPath, entry.path);
    TypeInto(Screen().txtStartIn, entry.start_in);
  }
  static void TypeInto(ui::TextBox& box, const std::string& text) {
    box.SelectAll();
    if (text.empty()) box.Type('\b');
    box.TypeText(text);
  }
  [[nodiscard]] launcher::LauncherEntry Fields() {
    return {Screen().txtName.Text(), Screen().txtPath.Text(), Screen().txtStartIn.Text()};
  }
  [[nodiscard]] std::vector<std::string> Rows() {
    std::vector<std::string> rows;
    for (int row = 0; row < Screen().lstPrograms.Count(); ++row) {
      rows.push_back(Screen().lstPrograms.Item(row));
    }
    return rows;
  }

  [[nodiscard]] std::optional<std::string> ListOnDisk() const { return machine.ReadFile(kListPath); }
  /// Returns the text of the newest of `count` boxes.
  [[nodiscard]] std::string BoxText(std::size_t count) const {
    if (machine.Boxes().size() != count) return std::to_string(machine.Boxes().size()) + " boxes";
    return machine.Boxes().back().text;
  }
  /// Returns the calls that change the disk, from call `first_call` on.
  [[nodiscard]] std::vector<std::string> Changes(std::size_t first_call = 0) const {
    std::vector<std::string> changes;
    for (std::size_t call = first_call; call < machine.Calls().size(); ++call) {
      const std::string& name = machine.Calls()[call];
      for (const char* const writing : {"WriteFile", "MoveFile", "DeleteFile", "FlushFile"}) {
        if (name.starts_with(writing)) changes.push_back(name);
      }
    }
    return changes;
  }

  os::SimulatedMachine machine;
  os::simulated::SimulatedFileDialogs dialogs;
  std::optional<config_launcher::ConfigForm> form;
};

}  // namespace qdix::tests
