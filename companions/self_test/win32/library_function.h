// Functions that are looked up while the program runs, because the first Windows 95 may lack them.
#pragma once

#include <windows.h>

namespace qdix::self_test::win32 {

/// Returns null if the library lacks the function. `Function` is its type.
template <class Function>
[[nodiscard]] Function FindFunction(HMODULE library, const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

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
