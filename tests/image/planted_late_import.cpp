// Imports a function that the second release of Windows 95 introduced.
#include <windows.h>

#include "runtime/entry.h"

extern "C" int QdixMain(void* /*instance*/, int /*show_command*/) {
  ULARGE_INTEGER available;
  ULARGE_INTEGER total;
  return GetDiskFreeSpaceExA("C:\\", &available, &total, nullptr);
}
