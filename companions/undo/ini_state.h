// Whether the bytes of a file are a whole system.ini.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qdix::undo {

/// Bytes that are read of a system.ini: far more than the 64 KB that Windows reads of one.
inline constexpr std::uint32_t kMaxIniBytes = 1024 * 1024;

enum class IniState : unsigned char {
  kMissing,
  /// There is a file, but it cannot be read.
  kUnreadable,
  /// Without this section Windows does not start.
  kWithoutBoot,
  kWithout386Enh,
  /// It does not end with a line break: the rest may be lost, as after a power cut or on a full disk.
  kCut,
  kWhole,
};

/// Never kMissing or kUnreadable.
[[nodiscard]] IniState StateOfIni(std::string_view bytes);

/// The content of a file and what it is worth; the content is empty unless the file could be read.
struct IniFile {
  IniState state = IniState::kMissing;
  std::string bytes{};

  [[nodiscard]] bool IsWhole() const { return state == IniState::kWhole; }
};

}  // namespace qdix::undo
