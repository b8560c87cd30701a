// The window of the editor of the program list, whole: kinds, names, captions with their access keys, tool
// tips, frames, tab order.
#include <gtest/gtest.h>

#include "config_launcher/config_screen.h"
#include "tests/support/screen_text.h"

namespace qdix::tests {
namespace {

constexpr const char* kControls =
    R"--(Label lblPrograms '&Programs, in the order of the launcher:'
ListBox lstPrograms ''
Label lblCount ''
Button cmdMoveUp 'Move &Up' (Move the selected program one place towards the beginning) disabled
Button cmdMoveDown 'Move &Down' (Move the selected program one place towards the end) disabled
Button cmdRemove '&Remove' (Take the selected program out of the list) disabled
Label lblName '&Name:'
TextBox txtName ''
Button cmdNew 'N&ew' (Empty the fields for another program)
Label lblPath '&Command Line:'
TextBox txtPath ''
Button cmdBrowsePath '&Browse...' (Look for a program to add)
Label lblStartIn '&Start In:'
TextBox txtStartIn ''
Button cmdBrowseStartIn 'Bro&wse...' (Look for the folder that the program is started in)
Button cmdAdd '&Add' (Put what is typed here at the end of the list)
Button cmdChange 'C&hange' (Give the selected program what is typed here) disabled
Button cmdOK 'OK' (Save the list and close the window) default
Button cmdCancel 'Cancel' cancel
)--";

TEST(ConfigTable, HoldsExactlyTheseControls) {
  ui::EventDispatcher events;
  const config_launcher::ConfigScreen screen{events};
  EXPECT_EQ(screen.Window.Caption(), "Config Launcher");
  EXPECT_EQ(ScreenText(screen.Window), kControls);
}

}  // namespace
}  // namespace qdix::tests
