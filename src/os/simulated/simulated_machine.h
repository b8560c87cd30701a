// A Windows 98 machine that a test sets up freely. It records the calls it receives, in order, and fails
// those that a test selects.
#pragma once

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "base/text.h"
#include "os/simulated/call_log.h"
#include "os/simulated/simulated_desktop.h"
#include "os/simulated/simulated_drives.h"
#include "os/simulated/simulated_files.h"
#include "os/simulated/simulated_memory.h"
#include "os/simulated/simulated_processor.h"
#include "os/simulated/simulated_registry.h"
#include "os/simulated/simulated_shell_files.h"
#include "os/system.h"

namespace qdix::os {

class SimulatedMachine final : private EventPump, private Clock, private Processes, private Session {
 public:
  SimulatedMachine();
  SimulatedMachine(const SimulatedMachine&) = delete;
  SimulatedMachine& operator=(const SimulatedMachine&) = delete;

  [[nodiscard]] const System& GetSystem() const { return system_; }

  // Memory, in bytes.
  void SetMemory(std::uint32_t total_physical, std::uint32_t available_physical,
                 std::uint32_t total_page_file, std::uint32_t available_page_file);
  /// Refuses blocks that exceed this total.
  void LimitAllocatableBytes(std::uint64_t bytes) { memory_.LimitAllocatableBytes(bytes); }
  [[nodiscard]] const std::vector<std::uint32_t>& AllAllocations() const { return memory_.AllAllocations(); }
  [[nodiscard]] std::vector<std::uint32_t> OutstandingBlocks() const { return memory_.OutstandingBlocks(); }
  [[nodiscard]] std::vector<std::uint32_t> TouchedPages() const { return memory_.TouchedPages(); }

  // Registry.
  void CreateRegistryKey(KeyHandle root, const std::string& path) { registry_.CreateKey(root, path); }
  /// Stores a text with its terminating NUL.
  void SetRegistryValue(KeyHandle root, const std::string& path, const std::string& name,
                        const std::string& text);
  void SetRegistryBytes(KeyHandle root, const std::string& path, const std::string& name, std::uint32_t type,
                        const std::string& bytes);
  [[nodiscard]] std::optional<std::string> RegistryText(KeyHandle root, const std::string& path,
                                                        const std::string& name) const;
  [[nodiscard]] std::optional<simulated::RegistryValue> RegistryValue(KeyHandle root, const std::string& path,
                                                                      const std::string& name) const {
    return registry_.Value(root, path, name);
  }
  [[nodiscard]] std::map<std::string, std::string> RegistryTexts(KeyHandle root,
                                                                 const std::string& path) const;
  [[nodiscard]] bool KeyExists(KeyHandle root, const std::string& path) const {
    return registry_.KeyExists(root, path);
  }
  void DenyWrites(KeyHandle root, const std::string& path) { registry_.DenyWrites(root, path); }
  [[nodiscard]] int OpenKeyCount() const { return registry_.OpenKeyCount(); }
  /// Closes every handle of this key behind the program's back and returns how many there were.
  int CloseHandlesOf(KeyHandle root, const std::string& path) { return registry_.CloseHandlesOf(root, path); }
  /// Returns the names of the values written, in order, not counting the first `first_call` recorded calls.
  [[nodiscard]] std::vector<std::string> WrittenValueNames(std::size_t first_call = 0) const;
  [[nodiscard]] std::vector<std::string> QueriedValueNames() const;

  // Files, by full paths.
  void WriteFile(const std::string& path, const std::string& content) { files_.Write(path, content); }
  [[nodiscard]] std::optional<std::string> ReadFile(const std::string& path) const {
    return files_.Read(path);
  }
  /// Simulates a Japanese Windows, whose file names have two-byte characters.
  void MakeJapanese() { files_.MakeJapanese(); }
  /// Makes this file read-only.
  void ProtectFile(const std::string& path) { files_.Protect(path); }
  /// Another program opens this file for exclusive use until UnlockFile.
  void LockFile(const std::string& path) { files_.Hold(path); }
  void UnlockFile(const std::string& path) { files_.Unlock(path); }
  /// Makes the disk read-only, like a CD: existing files can still be read.
  void ProtectDisk() { files_.ProtectDisk(); }
  /// Sets how many more bytes fit on the disk.
  void LimitFreeBytes(std::uint64_t bytes) { files_.LimitFreeBytes(bytes); }
  /// Returns how often the disk was written to.
  [[nodiscard]] int DiskWriteCount() const { return files_.WriteCount(); }
  /// Cuts the power during this write; the first is 1. Half of its bytes reach the disk, and nothing
  /// afterwards.
  void CutPowerInDiskWrite(int number) { files_.CutPowerInWrite(number); }
  /// Deletes a file. True if it existed.
  bool EraseFile(const std::string& path) { return files_.Erase(path); }
  [[nodiscard]] int OpenFileCount() const { return files_.OpenCount(); }
  /// Removes the disk from a drive: its folders cannot become current and its programs cannot be started.
  void RemoveDisk(char drive) { empty_drives_.insert(base::UpperAscii(std::string(1, drive))); }
  /// Adds a folder that can become the current one.
  void AddFolder(const std::string& path) { folders_.insert(base::UpperAscii(path)); }
  [[nodiscard]] const std::string& CurrentFolder() const { return current_folder_; }
  void SetWindowsDirectory(const std::string& folder) { files_.SetWindowsDirectory(folder); }

  // The shell's folders, and the shortcuts it makes for recent documents.
  void SetSpecialFolder(int number, const std::string& path) { shell_files_.SetFolder(number, path); }
  /// Simulates a shell that makes no shortcuts for recent documents, or names them differently.
  void MakeNoRecentShortcuts() { shell_files_.MakeNoRecentShortcuts(); }
  void AddShortcut(const std::string& path, const Shortcut& shortcut) { shell_files_.Put(path, shortcut); }
  [[nodiscard]] std::optional<Shortcut> ShortcutAt(const std::string& path) const {
    return shell_files_.At(path);
  }

  // Drives, by their letters in upper case.
  void AddDrive(char letter, const simulated::Drive& drive) { drives_.Add(letter, drive); }
  /// Simulates a system without the extended query for free space.
  void RemoveExtendedQuery() { drives_.RemoveExtendedQuery(); }

  // Event pump: the action runs inside each pump and receives the pump's number; the first is 1. A wait
  // counts as one pump.
  void OnPump(std::function<void(int)> action) { on_pump_ = std::move(action); }
  [[nodiscard]] int PumpCount() const { return pumps_; }

  // Windows of other programs.
  WindowHandle OpenWindow(const std::string& window_class, const std::string& title) {
    return windows_.Open(window_class, title);
  }
  void CloseWindow(WindowHandle window) { windows_.Close(window); }
  void SetWindowTitle(WindowHandle window, const std::string& title) { windows_.SetTitle(window, title); }
  void Minimise(WindowHandle window) { windows_.Minimise(window); }
  void PlaceDirectlyBehind(WindowHandle window, WindowHandle front) {
    windows_.PlaceDirectlyBehind(window, front);
  }
  [[nodiscard]] bool IsMinimised(WindowHandle window) const { return windows_.IsMinimised(window); }
  void HideWindow(WindowHandle window) { windows_.Hide(window); }
  [[nodiscard]] bool IsWindowShown(WindowHandle window) const { return windows_.IsShown(window); }
  [[nodiscard]] WindowHandle ForegroundWindow() const { return windows_.Foreground(); }

  // Message boxes.
  void AnswerNextBox(int answer) { dialogs_.AnswerNext(answer); }
  void WhileBoxIsOpen(std::function<void()> action) { dialogs_.WhileOpen(std::move(action)); }
  /// Ends the program: an open box closes without an answer, and no further box opens.
  void EndBoxes() { dialogs_.End(); }
  [[nodiscard]] const std::vector<simulated::Box>& Boxes() const { return dialogs_.Boxes(); }

  // Notification area.
  [[nodiscard]] const std::vector<simulated::TrayRequest>& TrayRequests() const { return shell_.Requests(); }
  /// Ends the taskbar and removes every icon with it.
  void ClearTrayIcons() { shell_.ClearIcons(); }
  [[nodiscard]] int TrayIconCount() const { return shell_.IconCount(); }

  [[nodiscard]] const std::vector<std::string>& OpenedFiles() const { return shell_.OpenedFiles(); }

  // The processor: it answers what the test sets here.
  [[nodiscard]] simulated::SimulatedProcessor& FakeProcessor() { return processor_; }

  // The performance statistics in the dynamic root. They exist once a load is set.
  void SetCpuLoad(std::uint32_t percent);
  /// Sets the bytes that the registry returns for the load.
  void SetCpuLoadBytes(const std::string& bytes);

  // Time and this process.
  void SetNow(double days) {
    now_days_ = days;
    files_.SetNow(days);
  }
  void AdvanceMs(std::int64_t ms);
  /// Ends the process and releases its mutexes.
  void EndProcess() { mutexes_.clear(); }
  void SetOtherCopyRunning(bool is_running) { other_copy_ = is_running; }
  void SetModuleFileName(const std::string& path) { module_file_name_ = path; }

  // Other programs, named by their command line up to a space, or by what is in quotation marks there. A name
  // with a folder is also a file. The disk defragmenter exists from the start.
  void AddProgram(const std::string& name);
  void RemoveProgram(const std::string& name);
  /// Returns the command lines that started a program, in order.
  [[nodiscard]] const std::vector<std::string>& StartedPrograms() const { return started_programs_; }

  /// Returns how often the session was asked to end with a restart.
  [[nodiscard]] int RestartCount() const { return restarts_; }

  // Faults and records. Numbers count the calls that can fail; the first is 1.
  void FailNextCall(const std::string& name) { log_.FailNext(name); }
  void FailCallNumber(int number) { log_.FailNumber(number); }
  void FailFromCallNumber(int number) { log_.FailFrom(number); }
  [[nodiscard]] int FaultableCallCount() const { return log_.FaultableCalls(); }
  [[nodiscard]] const std::vector<std::string>& Calls() const { return log_.Calls(); }
  [[nodiscard]] const std::vector<std::string>& Misuses() const { return log_.Misuses(); }
  /// Empties the records of calls, value accesses, allocations, message boxes and icon requests, which would
  /// fill the memory in a long run. Keeps what is currently held, and the misuses.
  void ClearRecords();
  /// For tests that misuse the machine on purpose.
  void ClearMisuses() { log_.ClearMisuses(); }

 private:
  void PumpEvents() override;
  void WaitMs(std::uint32_t ms) override;
  double Now() override;
  std::uint32_t GetTickCount() override;
  std::string LongDate(double days) override;
  bool MutexExistedBefore(const char* name) override;
  std::string ModuleFileName() override;
  std::int32_t CreateProcessA(const std::string& command_line) override;
  bool SetCurrentDirectoryA(const std::string& folder) override;
  [[nodiscard]] bool IsOnEmptyDrive(const std::string& path) const;
  bool ExitWindowsEx(std::uint32_t flags, std::uint32_t reserved) override;

  simulated::CallLog log_;
  simulated::SimulatedMemory memory_{log_};
  simulated::SimulatedRegistry registry_{log_};
  simulated::SimulatedWindows windows_{log_};
  simulated::SimulatedDialogs dialogs_{log_};
  simulated::SimulatedProcessor processor_{log_};
  simulated::SimulatedFiles files_{log_};
  simulated::SimulatedShell shell_{log_, files_};
  simulated::SimulatedShellFiles shell_files_{log_, files_};
  simulated::SimulatedDrives drives_{log_};
  System system_;
  std::function<void(int)> on_pump_;
  int pumps_ = 0;
  double now_days_ = 0;
  std::uint32_t tick_count_ms_ = 0;
  bool other_copy_ = false;
  std::set<std::string> mutexes_;
  std::string module_file_name_ = "C:\\Program Files\\QDIX\\QDIX.exe";
  std::set<std::string> programs_{"DEFRAG"};
  std::vector<std::string> started_programs_;
  std::set<std::string> empty_drives_;
  std::set<std::string> folders_{"C:", "C:\\", "C:\\WINDOWS"};
  std::string current_folder_ = "C:\\";
  int restarts_ = 0;
};

}  // namespace qdix::os
