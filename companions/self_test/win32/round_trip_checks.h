// Checks that what a hand does in a window is stored, and found again by the next start; and that a small
// release takes its memory and gives it back.
#pragma once

#include "self_test/win32/open_program.h"

namespace qdix::self_test::win32 {

void RunRoundTripChecks(const Bench& bench);

}  // namespace qdix::self_test::win32
