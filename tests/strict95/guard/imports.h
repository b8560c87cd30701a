// What the guard stands between, and what the first Windows 95 has; both lists are made by make_strict.py.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <cstddef>

namespace qdix::strict95 {

/// A function that one of the guarded programs imports or looks up.
struct Import {
  const char* library;
  const char* name;
  unsigned argument_words;
};

extern const Import kImports[];
extern const std::size_t kImportCount;

/// The system's address of each, null until it is known. A table of this image: tests put other code into it.
extern FARPROC system_functions[];

enum class Here {
  /// On the first Windows 95.
  kWorks,
  kOnlyFails,
  /// Windows ME has it, Windows 95 has not.
  kLater
};

struct Export {
  const char* library;
  const char* name;
  Here here;
};

extern const Export kExports[];
extern const std::size_t kExportCount;

}  // namespace qdix::strict95
