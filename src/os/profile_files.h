// Entries of profile files such as system.ini: sections in brackets, lines of key and value. A file name
// without a path means a file in the Windows folder. Section and key names ignore case.
#pragma once

#include <cstdint>

namespace qdix::os {

class ProfileFiles {
 public:
  /// Copies the value of an entry and its NUL, or `missing` if there is none. Truncates what does not fit.
  /// The system may strip trailing spaces and control characters from `missing`. The value excludes spaces
  /// around it and one pair of quotation marks around it. Returns the number of characters copied without the
  /// NUL: at most `size_bytes` - 1.
  [[nodiscard]] virtual std::uint32_t GetPrivateProfileStringA(const char* section, const char* key,
                                                               const char* missing, char* buffer,
                                                               std::uint32_t size_bytes,
                                                               const char* file) = 0;

  /// Writes an entry and creates the file and the section if they are missing. A null value removes the
  /// entry. False if the system refuses. With null for section, key and value together, writes out and
  /// discards what the system caches of the file, and always returns false. Flush a file in this way after
  /// reading or writing it and before anything but these functions changes it.
  virtual bool WritePrivateProfileStringA(const char* section, const char* key, const char* value,
                                          const char* file) = 0;

 protected:
  ~ProfileFiles() = default;
};

}  // namespace qdix::os
