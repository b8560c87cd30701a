// This process among others.
#pragma once

#include <cstdint>
#include <string>

#include "os/error_codes.h"

namespace qdix::os {

class Processes {
 public:
  virtual ~Processes() = default;

  /// Creates the named mutex and holds it until the process ends. True when another process had created it
  /// before. A failure to create it reads as "no other copy": a program that starts twice is better than one
  /// that does not start.
  [[nodiscard]] virtual bool MutexExistedBefore(const char* name) = 0;

  /// Full path of this program's own file, in the system's spelling; empty when the system does not tell.
  [[nodiscard]] virtual std::string ModuleFileName() = 0;

  /// Starts a program by its command line, in a normal window with the keyboard, and does not wait for it.
  /// Blanks outside of quotation marks are tried from the left, ".exe" is added where there is no extension,
  /// and the search goes through this program's folder, the current one, those of Windows, and the path.
  /// The system's code: 0, kErrorFileNotFound, kErrorPathNotFound, kErrorAccessDenied, kErrorNotReady where
  /// the text begins with a drive that has no disk in it, or another. Brings no box of the system.
  [[nodiscard]] virtual std::int32_t CreateProcessA(const std::string& command_line) = 0;

  /// Makes a folder the current one, which programs are started in, and its drive the current drive. A drive
  /// alone ("D:") means its own current folder. False where there is no such folder. A drive without a disk
  /// brings no box of the system.
  [[nodiscard]] virtual bool SetCurrentDirectoryA(const std::string& folder) = 0;
};

}  // namespace qdix::os
