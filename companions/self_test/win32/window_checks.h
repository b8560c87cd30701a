// Checks that every window of the programs can be made, matches its models, and is destroyed again.
#pragma once

#include "self_test/win32/open_program.h"

namespace qdix::self_test::win32 {

void RunWindowChecks(const Bench& bench);

}  // namespace qdix::self_test::win32
