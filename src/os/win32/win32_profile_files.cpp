#include "os/win32/win32_profile_files.h"

#include <windows.h>

namespace qdix::os::win32 {

std::uint32_t Win32ProfileFiles::GetPrivateProfileStringA(const char* section, const char* key,
                                                          const char* missing, char* buffer,
                                                          std::uint32_t size_bytes, const char* file) {
  return ::GetPrivateProfileStringA(section, key, missing, buffer, size_bytes, file);
}

bool Win32ProfileFiles::WritePrivateProfileStringA(const char* section, const char* key, const char* value,
                                                   const char* file) {
  return ::WritePrivateProfileStringA(section, key, value, file) != 0;
}

}  // namespace qdix::os::win32
