// Checks that graph and gauges draw on the canvas of the screen what they should, pixel by pixel.
#pragma once

#include "self_test/report.h"

namespace qdix::self_test::win32 {

void RunDrawingChecks(Report& report);

}  // namespace qdix::self_test::win32
