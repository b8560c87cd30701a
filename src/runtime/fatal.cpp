// Fatal exits of the program, and the hooks through which the headers of the standard library call them.
#include "runtime/fatal.h"

#include <windows.h>

#include <cstddef>

namespace qdix::runtime {

namespace {

constexpr UINT kExitCode = 3;

/// True once a fatal exit has begun. Its message box runs a message loop, and a handler called from there may
/// also fail: the second failure ends the process without another box.
constinit bool ending = false;

[[noreturn]] void End(const char* text) {
  if (ending) ExitProcess(kExitCode);
  ending = true;
  MessageBoxA(nullptr, text, "Q-DIX", MB_OK | MB_ICONSTOP | MB_SYSTEMMODAL | MB_SETFOREGROUND | MB_TOPMOST);
  ExitProcess(kExitCode);
}

}  // namespace

void EndForLackOfMemory() { End("Q-DIX is out of memory and must close."); }

void EndForInternalError() { End("Q-DIX has encountered an internal error and must close."); }

}  // namespace qdix::runtime

extern "C" [[noreturn]] void __cxa_pure_virtual() { qdix::runtime::EndForInternalError(); }

extern "C" [[noreturn]] void abort() { qdix::runtime::EndForInternalError(); }

namespace std {

[[noreturn]] void __throw_length_error(const char* /*what*/) { qdix::runtime::EndForInternalError(); }
[[noreturn]] void __throw_logic_error(const char* /*what*/) { qdix::runtime::EndForInternalError(); }
[[noreturn]] void __throw_out_of_range_fmt(const char* /*what*/, ...) {
  qdix::runtime::EndForInternalError();
}
[[noreturn]] void __throw_bad_alloc() { qdix::runtime::EndForLackOfMemory(); }
[[noreturn]] void __throw_bad_array_new_length() { qdix::runtime::EndForLackOfMemory(); }

}  // namespace std
