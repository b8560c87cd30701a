// Libraries that are loaded only to ask the system about them.
#pragma once

#include <windows.h>

namespace qdix::self_test::win32 {

/// A library that is loaded for a short time. If it or one of its own libraries is missing, the system shows
/// no box.
class LoadedLibrary {
 public:
  explicit LoadedLibrary(const char* name);
  LoadedLibrary(const LoadedLibrary&) = delete;
  LoadedLibrary& operator=(const LoadedLibrary&) = delete;
  ~LoadedLibrary();

  /// Returns null if it could not be loaded.
  [[nodiscard]] HMODULE Get() const { return library_; }

 private:
  HMODULE library_;
};

}  // namespace qdix::self_test::win32
