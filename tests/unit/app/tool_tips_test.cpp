// The tips that appear under the pointer, to the letter.
#include <gtest/gtest.h>

#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

struct Tip {
  const char* control;
  const char* text;
};

constexpr const char* kHalf = "Half your physical RAM is a good amount to release";
constexpr const char* kLevel = "Free up memory when RAM drops below this level";
constexpr const char* kDelay = "Time to wait after startup before freeing up RAM";
constexpr const char* kTimes = "Number of times Q-DIX will attempt to free up RAM at one time";

constexpr Tip kTips[] = {{"Text1", kTimes},
                         {"VScroll1", kTimes},
                         {"Command2", "Hide Q-DIX  while running in background"},
                         {"Command3", "Pause Q-DIX operation"},
                         {"Command4", "Minimizes, but shows available RAM in Taskbar"},
                         {"Check1", "Must be ticked for Automatic freeups to take place"},
                         {"List2", "Intervals for monitoring RAM"},
                         {"Text2", kLevel},
                         {"VScroll2", kLevel},
                         {"List4", kHalf},
                         {"Check3", "Must be ticked for Timed freeups to take place"},
                         {"lstTime", "Time interval at which RAM is Released"},
                         {"List3", kHalf},
                         {"Check2", "Allow Q-DIX to start when the computer is started"},
                         {"Command5", "Place a Q-DIX Shortcut Icon on your Desktop"},
                         {"Text3", kDelay},
                         {"VScroll3", kDelay},
                         {"Check4", "This should normally be left un-checked"},
                         {"List5", "Double click a program to launch"}};

TEST(ToolTips, AreOnTheirControls) {
  ProgramRig rig;
  rig.Create();
  for (const Tip& tip : kTips) {
    const ui::Control* const control = rig.program->Window().Find(tip.control);
    ASSERT_NE(control, nullptr) << tip.control;
    EXPECT_EQ(control->ToolTip(), tip.text) << tip.control;
  }
}

}  // namespace
}  // namespace qdix::tests
