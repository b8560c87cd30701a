// Imports two functions that Windows 95 exports only as stubs that fail.
#include <windows.h>

#include "runtime/entry.h"

extern "C" int QdixMain(void* /*instance*/, int /*show_command*/) {
  HANDLE const mutex = CreateMutexW(nullptr, FALSE, L"Planted");
  return MoveFileExA("old.txt", nullptr, MOVEFILE_DELAY_UNTIL_REBOOT) != 0 && mutex != nullptr ? 0 : 1;
}
