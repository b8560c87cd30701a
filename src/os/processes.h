// This process among others.
#pragma once

#include <string>

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
};

}  // namespace qdix::os
