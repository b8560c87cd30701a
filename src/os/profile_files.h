// Entries of profile files such as system.ini: sections in brackets, lines of key and value. A bare file name
// is one in the Windows directory. Names of sections and keys ignore case.
#pragma once

#include <cstdint>

namespace qdix::os {

class ProfileFiles {
 public:
  virtual ~ProfileFiles() = default;

  /// Copies the value of an entry, or `missing` where there is none, and its NUL; what does not fit is cut.
  /// Of `missing` the system may cut off blanks and control characters at the end.
  /// Blanks round the value and one pair of quotation marks round it are not part of it. Returns the
  /// characters copied without the NUL: at most `size_bytes` - 1.
  [[nodiscard]] virtual std::uint32_t GetPrivateProfileStringA(const char* section, const char* key,
                                                               const char* missing, char* buffer,
                                                               std::uint32_t size_bytes,
                                                               const char* file) = 0;

  /// Writes an entry, making file and section where they are missing; a null value removes the entry. False
  /// when the system refuses. With null for section, key and value at once it writes out what the system
  /// keeps of the file in memory and forgets it, and is always false. A file that was read or written must be
  /// flushed like this before anything but these calls changes it.
  virtual bool WritePrivateProfileStringA(const char* section, const char* key, const char* value,
                                          const char* file) = 0;
};

}  // namespace qdix::os
