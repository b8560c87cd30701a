// The shell's folders and shortcuts on the simulated machine. Shortcuts are files on its disk.
#pragma once

#include <map>
#include <vector>

#include "os/shell_files.h"
#include "os/simulated/call_log.h"
#include "os/simulated/simulated_files.h"

namespace qdix::os::simulated {

class SimulatedShellFiles final : public ShellFiles {
 public:
  SimulatedShellFiles(CallLog& log, SimulatedFiles& files) : log_(log), files_(files) {}

  std::string SpecialFolder(int number) override;
  bool SHFileOperationA(std::uint32_t operation, const std::string& from, const std::string& to,
                        std::uint16_t flags) override;
  void SHAddToRecentDocs(std::uint32_t kind, const std::string& path) override;
  std::optional<Shortcut> ReadShortcut(const std::string& path) override;
  bool WriteShortcut(const std::string& path, const Shortcut& shortcut) override;

  // The test's view; none of these calls is recorded. An empty path means that the shell does not have the
  // folder.
  void SetFolder(int number, const std::string& path) { folders_[number] = path; }
  void MakeNoRecentShortcuts() { makes_recent_shortcuts_ = false; }
  void Put(const std::string& path, const Shortcut& shortcut);
  [[nodiscard]] std::optional<Shortcut> At(const std::string& path) const;

 private:
  [[nodiscard]] std::vector<std::string> NamesOf(const std::string& list);
  bool Rename(const std::vector<std::string>& from, const std::vector<std::string>& to);
  bool Copy(const std::vector<std::string>& from, const std::vector<std::string>& to);

  CallLog& log_;
  SimulatedFiles& files_;
  std::map<int, std::string> folders_{{kStartupFolder, "C:\\WINDOWS\\Start Menu\\Programs\\StartUp"},
                                      {kRecentFolder, "C:\\WINDOWS\\Recent"},
                                      {kStartMenuFolder, "C:\\WINDOWS\\Start Menu"},
                                      {kDesktopFolder, "C:\\WINDOWS\\Desktop"}};
  bool makes_recent_shortcuts_ = true;
};

}  // namespace qdix::os::simulated
