// Rules for the window of every shipped program.
#pragma once

#include <gtest/gtest.h>

#include "tests/e2e/driver/shipped_program.h"

namespace qdix::e2e {

/// Expects the whole window to be visible on 640 by 480 pixels, above the taskbar.
inline void ExpectFitsOn640By480(const ShippedProgram& program) {
  constexpr int kTaskbarLines = 28;
  RECT window = {};
  GetWindowRect(program.MainWindow(), &window);
  EXPECT_LE(window.right - window.left, 640);
  EXPECT_LE(window.bottom - window.top, 480 - kTaskbarLines);
}

/// Expects every control of the screens to have its window inside the main window.
inline void ExpectControlsInsideTheWindow(const ShippedProgram& program) {
  RECT window = {};
  GetWindowRect(program.MainWindow(), &window);
  for (const ControlAddress& control : program.Controls()) {
    const RECT place = program.ScreenRect(control.name);
    RECT common = {};
    IntersectRect(&common, &window, &place);
    EXPECT_TRUE(EqualRect(&common, &place)) << control.name;
  }
}

}  // namespace qdix::e2e
