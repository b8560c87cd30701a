#include "self_test/win32/loaded_library.h"

namespace qdix::self_test::win32 {

LoadedLibrary::LoadedLibrary(const char* name) {
  const UINT former = SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
  library_ = LoadLibraryA(name);
  SetErrorMode(former);
}

LoadedLibrary::~LoadedLibrary() {
  if (library_ != nullptr) FreeLibrary(library_);
}

}  // namespace qdix::self_test::win32
