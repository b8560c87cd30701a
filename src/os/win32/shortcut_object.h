// One shortcut as the shell keeps it. The library that makes such objects is loaded for as long as one of
// them lives: a program that touches no shortcut does not pay for it.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "os/shell_files.h"

struct IShellLinkA;
struct IPersistFile;

namespace qdix::os::win32 {

class ShortcutObject {
 public:
  ShortcutObject();
  ShortcutObject(const ShortcutObject&) = delete;
  ShortcutObject& operator=(const ShortcutObject&) = delete;
  ~ShortcutObject();

  // False, and no other effect, where the system has no such objects.
  [[nodiscard]] bool Load(const std::string& path);
  [[nodiscard]] bool Set(const Shortcut& shortcut);
  [[nodiscard]] bool Save(const std::string& path);

  /// Nothing where it leads to something that is no file.
  [[nodiscard]] std::optional<Shortcut> Read() const;

 private:
  HMODULE library_;
  bool is_initialised_ = false;
  IShellLinkA* link_ = nullptr;
  IPersistFile* file_ = nullptr;
};

}  // namespace qdix::os::win32
