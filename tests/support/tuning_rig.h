// A machine for tests of the tuning tabs: its system.ini, its registry, and a user who answers boxes.
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "tests/support/program_rig.h"

namespace qdix::tests {

inline constexpr const char* kSystemIniPath = "C:\\WINDOWS\\system.ini";
inline constexpr const char* kBackupPath = "C:\\WINDOWS\\system.qdix";
inline constexpr const char* kMachineKeyPath = "SOFTWARE\\QDIX";
inline constexpr const char* kTemplatesPath = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\FS Templates";
inline constexpr const char* kOwnTemplatePath =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\FS Templates\\Quondix";

/// Returns the bytes of a machine with this much memory, in megabytes as the program shows them (1,024,000
/// bytes).
inline std::uint32_t MemoryBytes(double mb) { return static_cast<std::uint32_t>(std::lround(mb * 1024000)); }

/// Returns the bytes free on a drive that shows this many free megabytes of 1,024,000 bytes.
inline std::uint64_t FreeBytes(double mb) { return static_cast<std::uint64_t>(std::llround(mb * 1024000)); }

class TuningRig : public ProgramRig {
 public:
  /// Makes a machine with this much memory, in megabytes of 1,024,000 bytes. It has run the program before,
  /// and has the key of the templates and one fixed drive of 4,000 MB, 2,000 of them free.
  explicit TuningRig(double ram_mb = 64);

  void WriteSystemIni(const std::string& content);
  [[nodiscard]] std::string SystemIni() const;

  /// Starts the program and opens a tab.
  app::Form1& StartAt(screens::Tab tab);
  void End();
  /// Ends the program and starts it again on the same machine.
  app::Form1& Restart(screens::Tab tab);

  void Answer(const std::vector<int>& answers);
  [[nodiscard]] std::vector<std::string> BoxTexts() const;

  /// Returns the recorded calls that change the system, in order, from call number `first_call` on.
  [[nodiscard]] std::vector<std::string> Changes(std::size_t first_call = 0) const;

  /// Returns the type of a value and its bytes in hexadecimal, or "none" if it is missing.
  [[nodiscard]] std::string ValueBytes(const char* path, const char* name) const;
};

}  // namespace qdix::tests
