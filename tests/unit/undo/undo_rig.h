// The undo program on a simulated machine that Q-DIX has changed, with the record that Q-DIX itself makes.
#pragma once

#include <optional>
#include <string>

#include "os/simulated/simulated_machine.h"
#include "tuning/cache/file_system_template.h"
#include "tuning/first_save.h"
#include "tuning/system_ini.h"
#include "undo/undo_form.h"

namespace qdix::tests {

inline constexpr const char* kRestartQuestion =
    "You must restart your computer before the new settings take effect.\r\n\r\n"
    "Do you want to restart your computer now?";

inline constexpr const char* kIniPath = "C:\\WINDOWS\\system.ini";
inline constexpr const char* kBackupPath = "C:\\WINDOWS\\system.qdix";
inline constexpr const char* kRecordKey = "SOFTWARE\\QDIX";
/// Before the first change: a size of each kind, an entry of a single character, a missing entry.
inline constexpr const char* kIniBefore =
    "[boot]\r\nshell=Explorer.exe\r\n\r\n[386Enh]\r\nPagingDrive=D:\r\nMinPagingFileSize=0\r\n\r\n"
    "[vcache]\r\nMinFileCache=2048\r\n";
/// After both tabs were saved, and after an unrelated change.
inline constexpr const char* kIniAfter =
    "[boot]\r\nshell=Explorer.exe\r\nsound=new.drv\r\n\r\n"
    "[386Enh]\r\nPagingDrive=C:\r\nMinPagingFileSize=65536\r\nMaxPagingFileSize=65536\r\nPaging=on\r\n\r\n"
    "[vcache]\r\nMinFileCache=4096\r\nmaxfilecache=8192\r\nchunksize=512\r\n";
/// After that, with each entry put back.
inline constexpr const char* kIniPutBack =
    "[boot]\r\nshell=Explorer.exe\r\nsound=new.drv\r\n\r\n"
    "[386Enh]\r\nPagingDrive=D:\r\nMinPagingFileSize=0\r\n\r\n"
    "[vcache]\r\nMinFileCache=2048\r\n";

class UndoRig {
 public:
  /// Makes a machine that Q-DIX has seen but not changed. Without a template the key has no unnamed value.
  explicit UndoRig(const std::string& ini = kIniBefore, const std::string& template_in_force = "Desktop") {
    machine.WriteFile(kIniPath, ini);
    machine.CreateRegistryKey(os::kHkeyLocalMachine, tuning::kTemplatesKey);
    if (!template_in_force.empty()) SetTemplate(template_in_force);
  }

  /// Makes record and backup.
  void TakeRecord() {
    tuning::SystemIni ini(machine.GetSystem().profile_files, machine.GetSystem().files);
    tuning::FirstSave(machine.GetSystem(), ini).CheckFirstSave();
    record = machine.RegistryTexts(os::kHkeyLocalMachine, kRecordKey);
    backup = machine.ReadFile(kBackupPath);
  }
  /// Changes everything that the two tabs can change.
  void Change() {
    machine.WriteFile(kIniPath, kIniAfter);
    SetTemplate("Quondix");
  }
  void TakeRecordAndChange() {
    TakeRecord();
    Change();
  }

  /// Writes a value of the record from outside the program.
  void SetRecord(const std::string& name, const std::string& text) {
    machine.SetRegistryValue(os::kHkeyLocalMachine, kRecordKey, name, text);
    record = machine.RegistryTexts(os::kHkeyLocalMachine, kRecordKey);
  }

  undo::UndoForm& Start() {
    form.emplace(machine.GetSystem());
    form->Start();
    return *form;
  }
  [[nodiscard]] undo::UndoScreen& Screen() { return form->Screen(); }

  /// Ticks every row that can be put back.
  void TickAll() {
    for (undo::EntryRow* const row : Screen().Rows()) row->box.SetTicked(row->box.Enabled());
  }

  void SetTemplate(const std::string& name) {
    machine.SetRegistryValue(os::kHkeyLocalMachine, tuning::kTemplatesKey, "", name);
  }
  [[nodiscard]] std::optional<std::string> Template() const {
    return machine.RegistryText(os::kHkeyLocalMachine, tuning::kTemplatesKey, "");
  }
  [[nodiscard]] std::string Ini() const { return machine.ReadFile(kIniPath).value_or("no file"); }
  [[nodiscard]] bool RecordIsUntouched() const {
    return machine.RegistryTexts(os::kHkeyLocalMachine, kRecordKey) == record &&
           machine.ReadFile(kBackupPath) == backup;
  }
  /// Returns the calls that change something, from call `first_call` on.
  [[nodiscard]] std::vector<std::string> Changes(std::size_t first_call = 0) const {
    std::vector<std::string> changes;
    for (std::size_t call = first_call; call < machine.Calls().size(); ++call) {
      const std::string& name = machine.Calls()[call];
      for (const char* const writing :
           {"WritePrivate", "RegSet", "RegDelete", "RegCreate", "CopyFile", "CreateFileA", "WriteFile",
            "MoveFile", "DeleteFile", "ExitWindows"}) {
        const bool is_reading = name.starts_with("CreateFileA") && name.ends_with(", 3)");
        if (name.starts_with(writing) && !is_reading) changes.push_back(name);
      }
    }
    return changes;
  }

  os::SimulatedMachine machine;
  std::optional<undo::UndoForm> form;
  std::map<std::string, std::string> record;
  std::optional<std::string> backup;
};

}  // namespace qdix::tests
