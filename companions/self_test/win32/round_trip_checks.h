// Checks that the user's changes in a window are stored and restored at the next start, and that a small
// release takes its memory and gives it back.
#pragma once

#include "self_test/win32/open_program.h"

namespace qdix::self_test::win32 {

void RunRoundTripChecks(const Bench& bench);

}  // namespace qdix::self_test::win32
