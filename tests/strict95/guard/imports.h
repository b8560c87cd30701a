// The functions that the programs import, and those that the first Windows 95 exports. make_strict.py
// generates both lists.
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

/// The system's address of each import, null until it is known.
extern FARPROC system_functions[];

enum class Support {
  /// Works on the first Windows 95.
  kWorks,
  /// Exported by the first Windows 95, but a stub that only fails.
  kOnlyFails,
  /// Added after Windows 95, at the latest by Windows ME.
  kLater
};

struct Export {
  const char* library;
  const char* name;
  Support support;
};

extern const Export kExports[];
extern const std::size_t kExportCount;

}  // namespace qdix::strict95
