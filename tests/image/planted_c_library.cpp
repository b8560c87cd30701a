// Imports from the C library, which the first Windows 95 does not include.
#include "runtime/entry.h"

extern "C" __declspec(dllimport) int puts(const char* text);

extern "C" int QdixMain(void* /*instance*/, int /*show_command*/) { return puts(""); }
