// A shortcut as the shell stores it. ole32.dll is loaded only while such an object exists, so a program that
// uses no shortcut does not pay for it.
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

  // Each returns false and does nothing if the system has no such objects.
  [[nodiscard]] bool Load(const std::string& path);
  [[nodiscard]] bool Set(const Shortcut& shortcut);
  [[nodiscard]] bool Save(const std::string& path);

  /// Returns nullopt if the target is not a file.
  [[nodiscard]] std::optional<Shortcut> Read() const;

 private:
  HMODULE library_;
  bool is_initialised_ = false;
  IShellLinkA* link_ = nullptr;
  IPersistFile* file_ = nullptr;
};

}  // namespace qdix::os::win32
