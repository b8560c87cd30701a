// This process, and the programs that it starts.
#pragma once

#include <cstdint>
#include <string>

#include "os/error_codes.h"

namespace qdix::os {

class Processes {
 public:
  /// Creates the named mutex and holds it until the process ends. True if another process had already created
  /// it. Returns false if it cannot be created: a program that starts twice is better than one that does not
  /// start.
  [[nodiscard]] virtual bool MutexExistedBefore(const char* name) = 0;

  /// Returns the full path of this program's own file in the system's spelling; empty if the system does not
  /// report it.
  [[nodiscard]] virtual std::string ModuleFileName() = 0;

  /// Starts a program by its command line, in a normal window with the keyboard focus, and does not wait for
  /// it. Outside quotation marks, tries to end the name at each space from the left. Adds ".exe" if there is
  /// no extension. Searches this program's folder, the current folder, the Windows folders and the path.
  /// Returns the system's code: 0, kErrorFileNotFound, kErrorPathNotFound, kErrorAccessDenied, kErrorNotReady
  /// if the command line begins with a drive that has no disk in it, or another code. Never shows a system
  /// message box.
  [[nodiscard]] virtual std::int32_t CreateProcessA(const std::string& command_line) = 0;

  /// Makes a folder, and its drive, the current one; programs are started in it. A drive alone ("D:") means
  /// its own current folder. False if there is no such folder. A drive without a disk shows no system message
  /// box.
  [[nodiscard]] virtual bool SetCurrentDirectoryA(const std::string& folder) = 0;

 protected:
  ~Processes() = default;
};

}  // namespace qdix::os
