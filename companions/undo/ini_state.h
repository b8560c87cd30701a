// Checks whether the bytes of a file are a complete system.ini.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qdix::undo {

/// Maximum number of bytes read from a system.ini: far more than the 64 KB that Windows reads.
inline constexpr std::uint32_t kMaxIniBytes = 1024 * 1024;

enum class IniState : unsigned char {
  kMissing,
  /// The file exists but cannot be read.
  kUnreadable,
  /// Windows does not start without this section.
  kWithoutBoot,
  kWithout386Enh,
  /// The file does not end with a line break. Its end may be missing, for example after a power failure or on
  /// a full disk.
  kCut,
  kWhole,
};

/// Never returns kMissing or kUnreadable.
[[nodiscard]] IniState StateOfIni(std::string_view bytes);

/// The content of a file and its state. The content is empty if the file could not be read.
struct IniFile {
  IniState state = IniState::kMissing;
  std::string bytes{};

  [[nodiscard]] bool IsWhole() const { return state == IniState::kWhole; }
};

}  // namespace qdix::undo
