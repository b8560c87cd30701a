// Files as the shell sees them: its own folders, its operations on files, its list of recent documents, and
// shortcuts.
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

/// A document is named by its path.
inline constexpr std::uint32_t kShardPath = 2;

/// What a shortcut starts. Empty texts are none.
struct Shortcut {
  std::string target;
  std::string arguments;
  /// The folder that it is started in.
  std::string folder;
};

class ShellFiles {
 public:
  virtual ~ShellFiles() = default;

  /// Path of one of the shell's folders, with a backslash at its end only where it is a root; empty where the
  /// shell has none.
  [[nodiscard]] virtual std::string SpecialFolder(int number) = 0;

  /// Copies or renames. Each of both lists consists of names that end with a NUL, and of one more NUL. False
  /// where it failed or somebody stopped it.
  virtual bool SHFileOperationA(std::uint32_t operation, const std::string& from, const std::string& to,
                                std::uint16_t flags) = 0;

  /// Adds a file to the recent documents. Up to Windows ME this makes a shortcut in their folder, named as
  /// the file with ".lnk" behind it.
  virtual void SHAddToRecentDocs(std::uint32_t kind, const std::string& path) = 0;

  /// What a shortcut leads to, as it stands there; nothing where the file is no shortcut, or leads to
  /// something that is no file.
  [[nodiscard]] virtual std::optional<Shortcut> ReadShortcut(const std::string& path) = 0;

  /// Makes a shortcut, over an earlier one. False where that failed.
  [[nodiscard]] virtual bool WriteShortcut(const std::string& path, const Shortcut& shortcut) = 0;
};

}  // namespace qdix::os
