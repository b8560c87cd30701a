// The registry as Windows offers it. Methods have the names of the Windows functions and return the error
// code of the system: 0 is success.
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
/// Statistics that Windows generates when they are read; Windows 95, 98 and ME only.
inline constexpr KeyHandle kHkeyDynData = 0x80000006U;

inline constexpr std::uint32_t kRegSz = 1;
inline constexpr std::uint32_t kRegBinary = 3;
inline constexpr std::uint32_t kRegDword = 4;

inline constexpr std::uint32_t kKeyQueryValue = 0x0001U;
inline constexpr std::uint32_t kKeySetValue = 0x0002U;
/// All rights to a key except those to its security.
inline constexpr std::uint32_t kKeyAllRights = 0x003FU;
inline constexpr std::uint32_t kKeyAllAccess = 0xF003FU;

class Registry {
 public:
  /// Opens an existing key. `opened` is set on success only.
  [[nodiscard]] virtual std::int32_t RegOpenKeyExA(KeyHandle parent, const char* subkey, std::uint32_t access,
                                                   KeyHandle& opened) = 0;

  /// Opens a key and creates it, with every missing key above it, if it does not exist. `opened` is set on
  /// success only.
  [[nodiscard]] virtual std::int32_t RegCreateKeyExA(KeyHandle parent, const char* subkey,
                                                     std::uint32_t access, KeyHandle& opened) = 0;

  /// The functions from 16-bit Windows, which take no access rights and grant as many as possible. The second
  /// creates a missing key.
  [[nodiscard]] virtual std::int32_t RegOpenKeyA(KeyHandle parent, const char* subkey, KeyHandle& opened) = 0;
  [[nodiscard]] virtual std::int32_t RegCreateKeyA(KeyHandle parent, const char* subkey,
                                                   KeyHandle& opened) = 0;

  /// Reads a value. An empty `value_name` means the unnamed value. With a null `data`, reads only the type
  /// and the size. `size_bytes` holds the size of the buffer on entry and the size of the value on return; a
  /// buffer that is too small gives kErrorMoreData.
  [[nodiscard]] virtual std::int32_t RegQueryValueExA(KeyHandle key, const char* value_name,
                                                      std::uint32_t& type, std::uint8_t* data,
                                                      std::uint32_t& size_bytes) = 0;

  /// Writes a value of any type. The size of a text includes its terminating NUL.
  [[nodiscard]] virtual std::int32_t RegSetValueExA(KeyHandle key, const char* value_name, std::uint32_t type,
                                                    const std::uint8_t* data, std::uint32_t size_bytes) = 0;

  [[nodiscard]] virtual std::int32_t RegDeleteValueA(KeyHandle key, const char* value_name) = 0;

  /// Writes registry changes to the disk before it returns. Windows 95, 98 and ME otherwise write them at a
  /// time of their own choosing.
  virtual std::int32_t RegFlushKey(KeyHandle key) = 0;

  virtual std::int32_t RegCloseKey(KeyHandle key) = 0;

 protected:
  ~Registry() = default;
};

}  // namespace qdix::os
