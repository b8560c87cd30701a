// The start of a shipped program.
#pragma once

/// The program's main function, supplied by its one-file entry. `instance` is the module handle,
/// `show_command` the way in which whoever started the program wants its window shown (SW_...). The result
/// becomes the exit code of the process.
extern "C" int QdixMain(void* instance, int show_command);
