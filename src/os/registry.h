// The registry as the system offers it. Methods are named as the calls they stand for and return the system's
// code: 0 is success.
#pragma once

#include <cstdint>

#include "os/error_codes.h"

namespace qdix::os {

/// An open key or one of the predefined roots.
using KeyHandle = std::uint32_t;

inline constexpr KeyHandle kHkeyClassesRoot = 0x80000000U;
inline constexpr KeyHandle kHkeyCurrentUser = 0x80000001U;
inline constexpr KeyHandle kHkeyLocalMachine = 0x80000002U;
inline constexpr KeyHandle kHkeyUsers = 0x80000003U;
inline constexpr KeyHandle kHkeyPerformanceData = 0x80000004U;
inline constexpr KeyHandle kHkeyCurrentConfig = 0x80000005U;
/// Statistics that the system makes up as they are read; Windows 95, 98 and ME only.
inline constexpr KeyHandle kHkeyDynData = 0x80000006U;

inline constexpr std::uint32_t kRegSz = 1;
inline constexpr std::uint32_t kRegBinary = 3;
inline constexpr std::uint32_t kRegDword = 4;

inline constexpr std::uint32_t kKeyQueryValue = 0x0001U;
inline constexpr std::uint32_t kKeySetValue = 0x0002U;
/// All rights of a key but those of its security.
inline constexpr std::uint32_t kKeyAllRights = 0x003FU;
inline constexpr std::uint32_t kKeyAllAccess = 0xF003FU;

class Registry {
 public:
  virtual ~Registry() = default;

  /// Opens an existing key. `opened` is written on success only.
  [[nodiscard]] virtual std::int32_t RegOpenKeyExA(KeyHandle parent, const char* subkey, std::uint32_t access,
                                                   KeyHandle& opened) = 0;

  /// Opens a key and creates it, with every missing key above it, when it does not exist. `opened` is written
  /// on success only.
  [[nodiscard]] virtual std::int32_t RegCreateKeyExA(KeyHandle parent, const char* subkey,
                                                     std::uint32_t access, KeyHandle& opened) = 0;

  /// The calls of 16-bit times: as much access as there is, no more said. A key that is missing is created by
  /// the second.
  [[nodiscard]] virtual std::int32_t RegOpenKeyA(KeyHandle parent, const char* subkey, KeyHandle& opened) = 0;
  [[nodiscard]] virtual std::int32_t RegCreateKeyA(KeyHandle parent, const char* subkey,
                                                   KeyHandle& opened) = 0;

  /// Reads a value. `value_name` may be empty for the unnamed value. `data` may be null to ask for type and
  /// size only. `size_bytes` holds the room on entry and the size of the value on return; too little room is
  /// kErrorMoreData.
  [[nodiscard]] virtual std::int32_t RegQueryValueExA(KeyHandle key, const char* value_name,
                                                      std::uint32_t& type, std::uint8_t* data,
                                                      std::uint32_t& size_bytes) = 0;

  /// Writes a value of any type; the size of a text counts its closing NUL.
  [[nodiscard]] virtual std::int32_t RegSetValueExA(KeyHandle key, const char* value_name, std::uint32_t type,
                                                    const std::uint8_t* data, std::uint32_t size_bytes) = 0;

  [[nodiscard]] virtual std::int32_t RegDeleteValueA(KeyHandle key, const char* value_name) = 0;

  /// Writes what was changed in the registry to the disk before it returns. Windows 95, 98 and ME otherwise
  /// do that when they like.
  virtual std::int32_t RegFlushKey(KeyHandle key) = 0;

  virtual std::int32_t RegCloseKey(KeyHandle key) = 0;
};

}  // namespace qdix::os
