// The window of the help viewer, whole: kinds, names, captions with their access keys, tool tips, frames, tab
// order.
#include <gtest/gtest.h>

#include "help_viewer/help_screen.h"
#include "tests/support/screen_text.h"

namespace qdix::tests {
namespace {

constexpr const char* kControls =
    R"--(Button cmdContents '&Contents' (List all topics)
Button cmdBack '&Back' (Return to the topic before this one) disabled
Button cmdFind '&Find' (List the topics that have a word)
Button cmdPrint '&Print...' (Print this topic)
Button cmdCopy 'Cop&y Topic' (Copy the text of the whole topic to the clipboard (Ctrl+C))
ListBox lstContents ''
Label lblWord '&Word to find:' hidden
TextBox txtWord '' hidden
Label lblFound '&Topics found:' hidden
ListBox lstFound '' (Enter or a double click opens a topic, once more goes to the next place) hidden
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
