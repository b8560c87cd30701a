// A program that imports a function which came with the second release of Windows 95.
#include <windows.h>

#include "runtime/entry.h"

extern "C" int QdixMain(void* /*instance*/, int /*show_command*/) {
  ULARGE_INTEGER available;
  ULARGE_INTEGER total;
  return GetDiskFreeSpaceExA("C:\\", &available, &total, nullptr);
}
