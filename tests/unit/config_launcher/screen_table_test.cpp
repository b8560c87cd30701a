// The window of the program-list editor, complete: kinds, names, captions with their access keys, tool tips,
// frames, tab order.
#include <gtest/gtest.h>

#include "config_launcher/config_screen.h"
#include "tests/support/screen_text.h"

namespace qdix::tests {
namespace {

constexpr const char* kControls =
    R"--(Label lblPrograms '&Programs, in the order of the launcher:'
ListBox lstPrograms ''
Label lblCount ''
Button cmdMoveUp 'Move &Up' (Move the selected program up one place) disabled
Button cmdMoveDown 'Move &Down' (Move the selected program down one place) disabled
Button cmdRemove '&Remove' (Remove the selected program from the list) disabled
Label lblName '&Name:'
TextBox txtName ''
Button cmdNew 'N&ew' (Clear the fields for a new program)
Label lblPath '&Command Line:'
TextBox txtPath ''
Button cmdBrowsePath '&Browse...' (Find a program to add)
Label lblStartIn '&Start In:'
TextBox txtStartIn ''
Button cmdBrowseStartIn 'Bro&wse...' (Find the folder that the program starts in)
Button cmdAdd '&Add' (Add this program to the end of the list)
Button cmdChange 'C&hange' (Change the selected program to what you typed) disabled
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
