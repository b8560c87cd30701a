#include "tests/e2e/driver/restart_watch.h"

#include <cstddef>

#include "tests/e2e/driver/import_redirect.h"

namespace qdix::e2e {

namespace {

/// Stores the arguments first and counts the call last: a reader that sees the count also sees the arguments.
std::string RecordAndAgree(std::uint32_t flags, std::uint32_t reserved, std::uint32_t count) {
  MachineCode code;
  code.Bytes("\x8B\x44\x24\x04\xA3").Number(flags);       // eax = first argument; flags = eax
  code.Bytes("\x8B\x44\x24\x08\xA3").Number(reserved);    // eax = second argument; reserved = eax
  code.Bytes("\xFF\x05").Number(count);                   // count += 1
  code.Bytes("\xB8").Number(TRUE).Bytes({'\xC2', 8, 0});  // eax = TRUE; ret 8
  return code.Text();
}

}  // namespace

RestartWatch::RestartWatch(HANDLE process)
    : process_(process),
      page_(process),
      memory_(CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(Notes), nullptr)),
      notes_(static_cast<const volatile Notes*>(MapViewOfFile(memory_, FILE_MAP_READ, 0, 0, sizeof(Notes)))) {
}

RestartWatch::~RestartWatch() {
  UnmapViewOfFile(const_cast<const Notes*>(notes_));
  CloseHandle(memory_);
}

std::uint32_t RestartWatch::ShareNotes() const {
  HANDLE theirs = nullptr;
  if (notes_ == nullptr || DuplicateHandle(GetCurrentProcess(), memory_, process_, &theirs, 0, FALSE,
                                           DUPLICATE_SAME_ACCESS) == 0) {
    return 0;
  }
  const auto handle = static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(theirs));
  return CallInside(process_, SystemFunction("kernel32.dll", "MapViewOfFile"),
                    {handle, FILE_MAP_WRITE, 0, 0, sizeof(Notes)})
      .value_or(0);
}

bool RestartWatch::Begin() {
  const std::uint32_t notes = ShareNotes();
  const std::string code = RecordAndAgree(notes + offsetof(Notes, flags), notes + offsetof(Notes, reserved),
                                          notes + offsetof(Notes, count));
  return notes != 0 && page_.Write(0, code) &&
         RedirectImport(process_, SystemFunction("user32.dll", "ExitWindowsEx"), page_.At(0));
}

std::uint32_t RestartWatch::Count() const { return notes_->count; }

std::uint32_t RestartWatch::Flags() const { return notes_->flags; }

std::uint32_t RestartWatch::Reserved() const { return notes_->reserved; }

}  // namespace qdix::e2e
