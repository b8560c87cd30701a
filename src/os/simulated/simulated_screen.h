// A screen of the size that the test sets; by default 640 by 480 with a taskbar.
#pragma once

#include "os/screen.h"

namespace qdix::os::simulated {

class SimulatedScreen final : public Screen {
 public:
  ScreenSize WorkArea() override { return work_area; }

  ScreenSize work_area{.width = 640, .height = 452};
};

}  // namespace qdix::os::simulated
