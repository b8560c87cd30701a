// Functions that are looked up while the program runs, because the first Windows 95 may lack them or because
// their library is loaded only when it is needed.
#pragma once

#include <windows.h>

namespace qdix::os::win32 {

/// Returns null if the library lacks the function. `Function` is its type.
template <class Function>
[[nodiscard]] Function FindFunction(HMODULE library, const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

using ExtendedQuery = BOOL(WINAPI*)(const char*, ULARGE_INTEGER*, ULARGE_INTEGER*, ULARGE_INTEGER*);

/// Returns the query for the disk space in 64-bit numbers. Null on the first Windows 95; its second edition
/// has it.
[[nodiscard]] inline ExtendedQuery FindExtendedQuery() {
  return FindFunction<ExtendedQuery>(GetModuleHandleA("kernel32.dll"), "GetDiskFreeSpaceExA");
}

}  // namespace qdix::os::win32
