// Checks pixel by pixel that the graph and the gauges draw correctly on a screen canvas.
#pragma once

#include "self_test/report.h"

namespace qdix::self_test::win32 {

void RunDrawingChecks(Report& report);

}  // namespace qdix::self_test::win32
