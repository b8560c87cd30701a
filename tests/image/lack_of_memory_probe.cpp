// Asks for more memory in one piece than a process can have, and once more out of the message loop of the box
// that says so. The second failure must end the process; a second box would ask again, and so on without an
// end.
#include <windows.h>

#include <new>

#include "runtime/entry.h"

namespace {

constexpr unsigned kMoreThanThereIs = 0x7FFF0000U;
constexpr unsigned kIntervalMs = 100;

void AskForTooMuch() { operator delete(operator new(kMoreThanThereIs)); }

void CALLBACK AskAgain(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time_ms*/) {
  AskForTooMuch();
}

}  // namespace

extern "C" int QdixMain(void* /*instance*/, int /*show_command*/) {
  SetTimer(nullptr, 0, kIntervalMs, &AskAgain);
  AskForTooMuch();
  return 0;
}
