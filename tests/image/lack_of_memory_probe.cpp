// Asks for more memory in one block than a process can have, and asks again from the message loop of the box
// that reports the failure. The second failure must end the process; a second box would ask again, and so on
// for ever.
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
