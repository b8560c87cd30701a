// The start of a shipped program.
#pragma once

/// The program's main function, defined in its entry file. `instance` is the module handle. `show_command` is
/// how the caller wants the window shown (SW_...). Returns the exit code of the process.
extern "C" int QdixMain(void* instance, int show_command);
