// Files as the shell sees them: its own folders, file operations, recent documents and shortcuts.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace qdix::os {

// Numbers of the shell's own folders.
inline constexpr int kStartupFolder = 7;
inline constexpr int kRecentFolder = 8;
inline constexpr int kStartMenuFolder = 11;
inline constexpr int kDesktopFolder = 16;

inline constexpr std::uint32_t kFoCopy = 2;
inline constexpr std::uint32_t kFoRename = 4;

inline constexpr std::uint16_t kFofSilent = 0x0004;
inline constexpr std::uint16_t kFofNoConfirmation = 0x0010;
inline constexpr std::uint16_t kFofNoConfirmMkDir = 0x0200;

/// The document is given by its path.
inline constexpr std::uint32_t kShardPath = 2;

/// What a shortcut starts. Empty texts mean none.
struct Shortcut {
  std::string target;
  std::string arguments;
  /// The folder in which the target starts.
  std::string folder;
};

class ShellFiles {
 public:
  /// Returns the path of a shell folder, with a trailing backslash only if it is a root. Empty if the shell
  /// has no such folder.
  [[nodiscard]] virtual std::string SpecialFolder(int number) = 0;

  /// Copies or renames files. Both lists consist of NUL-terminated names and a final NUL. False if it failed
  /// or was cancelled.
  virtual bool SHFileOperationA(std::uint32_t operation, const std::string& from, const std::string& to,
                                std::uint16_t flags) = 0;

  /// Adds a file to the recent documents. Up to Windows ME this makes a shortcut in their folder, named like
  /// the file with ".lnk" appended.
  virtual void SHAddToRecentDocs(std::uint32_t kind, const std::string& path) = 0;

  /// Returns what a shortcut stores, without searching for a target that has moved. Returns nullopt if the
  /// file is not a shortcut or its target is not a file.
  [[nodiscard]] virtual std::optional<Shortcut> ReadShortcut(const std::string& path) = 0;

  /// Makes a shortcut and replaces an existing one. False on failure.
  [[nodiscard]] virtual bool WriteShortcut(const std::string& path, const Shortcut& shortcut) = 0;

 protected:
  ~ShellFiles() = default;
};

}  // namespace qdix::os
