// The window of the help viewer, complete: kinds, names, captions with their access keys, tool tips, frames,
// tab order.
#include <gtest/gtest.h>

#include "help_viewer/help_screen.h"
#include "tests/support/screen_text.h"

namespace qdix::tests {
namespace {

constexpr const char* kControls =
    R"--(Button cmdContents '&Contents' (List all topics)
Button cmdBack '&Back' (Go back to the previous topic) disabled
Button cmdFind '&Find' (Find the topics that contain a word)
Button cmdPrint '&Print...' (Print this topic)
Button cmdCopy 'Cop&y Topic' (Copy the text of the whole topic to the clipboard (Ctrl+C))
ListBox lstContents ''
Label lblWord '&Word to find:' hidden
TextBox txtWord '' hidden
Label lblFound '&Topics found:' hidden
ListBox lstFound '' (Press Enter or double-click to open a topic, again for the next match) hidden
Own paneTopic ''
)--";

TEST(HelpTable, HoldsExactlyTheseControls) {
  ui::EventDispatcher events;
  const help_viewer::HelpScreen screen{events};
  EXPECT_EQ(screen.Window.Caption(), "Quondix Help");
  EXPECT_EQ(ScreenText(screen.Window), kControls);
}

}  // namespace
}  // namespace qdix::tests
