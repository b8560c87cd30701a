// Uses the help viewer at random, with a pane of any size and its printer and clipboard in any state. It
// always shows a topic of the book, at a position within that topic. A failing run prints its seed.
#include <gtest/gtest.h>

#include <array>

#include "tests/fuzz/random_user.h"
#include "tests/unit/help_viewer/help_rig.h"

namespace qdix::tests {
namespace {

constexpr unsigned long kEvents = 12000;

class RandomHelpUser : private RandomSource {
 public:
  using RandomSource::RandomSource;

  unsigned long Run() {
    rig_.machine.WhileBoxIsOpen([this] { actions_.Answer(rig_.machine); });
    rig_.printer.while_open = [this] {
      if (Chance(40)) rig_.form->EndSession();
    };
    Start();
    for (unsigned long events = 0; events < kEventsPerRun; ++events) {
      Act();
      CheckInvariants();
      if (rig_.form->Form().Unloaded()) Start();
    }
    return kEventsPerRun;
  }

 private:
  void Start() {
    rig_.Start(Chance(3) ? actions_.SomeText() : std::to_string(Random() % 13));
    actions_.Collect(rig_.form->Form());
    has_surface_ = true;
  }

  void Act() {
    if (Chance(10)) ChangeDevices();
    if (Chance(10)) ChangeWindow();
    if (Chance(80)) rig_.form->Form().PressEscape();
    if (Chance(3)) return actions_.UseAny();
    if (Chance(4)) return Find();
    UsePane();
  }

  void ChangeDevices() {
    static constexpr std::array<const char*, 5> kCalls{"", "StartDocA", "StartPage", "EndPage", "EndDoc"};
    using Choice = os::Printer::Choice;
    static constexpr std::array<Choice, 3> kChoices{Choice::kPrint, Choice::kCancelled, Choice::kFailed};
    rig_.clipboard.is_held = Chance(2);
    rig_.printer.choice = kChoices[Random() % kChoices.size()];
    rig_.printer.failing_call = kCalls[Random() % kCalls.size()];
    rig_.printer.calls.clear();
    rig_.printer.pages.clear();
  }

  [[nodiscard]] int Pixels() { return static_cast<int>(Random() % 700); }

  void ChangeWindow() {
    ui::Form& window = rig_.form->Form();
    window.UserResized(
        {static_cast<std::int16_t>(Random() % 900), static_cast<std::int16_t>(Random() % 700)});
    window.UserMoved({Pixels() - 100, Pixels() - 100, Pixels(), Pixels()});
    if (Chance(8)) window.UserChangedState(ui::WindowState::kMaximised);
    if (Chance(4)) window.UserChangedState(ui::WindowState::kNormal);
    has_surface_ = !Chance(8);
    rig_.Pane().SurfaceChanged(has_surface_ ? &rig_.device : nullptr, Pixels(), Pixels());
  }

  void Find() {
    static constexpr std::array<const char*, 5> kWords{"e", "files", "PARAGRAPH 1", "caf\xE9", "nowhere"};
    rig_.Screen().cmdFind.Press();
    rig_.TypeWord(Chance(4) ? actions_.SomeText() : kWords[Random() % kWords.size()]);
    rig_.Screen().txtWord.PressEnter();
    if (Chance(2)) rig_.Screen().lstFound.DoubleClick(static_cast<int>(Random() % 6));
  }

  void UsePane() {
    using Scroll = help_viewer::TopicPane::Scroll;
    help_viewer::TopicPane& pane = rig_.Pane();
    switch (Random() % 8) {
      case 0:
        return pane.ScrollTo(Pixels() - 50);
      case 1:
        return pane.ScrollBy(static_cast<Scroll>(Random() % 6));
      case 2:
        return pane.FocusNextLink(Chance(2));
      case 3:
        return pane.PressEnter();
      case 4:
        return pane.Follow(static_cast<int>(Random() % 6) - 1);
      case 5:
        return pane.FocusLink(pane.LinkAt(Pixels(), Pixels()));
      case 6:
        return pane.MarkNext();
      default:
        return pane.Copy();
    }
  }

  void CheckInvariants() {
    help_viewer::TopicPane& pane = rig_.Pane();
    EXPECT_GE(pane.ScrollPosition(), 0);
    EXPECT_LE(pane.ScrollPosition(), std::max(pane.TheLayout().height - pane.Height(), 0));
    EXPECT_GE(pane.FocusedLink(), -1);
    // Nothing is laid out without a surface. The next surface gives the keyboard back to the link that had
    // it.
    if (has_surface_) {
      EXPECT_LT(pane.FocusedLink(), static_cast<int>(pane.TheLayout().links.size()));
    }
    EXPECT_GE(rig_.form->Current(), help_viewer::kContentsPage);
    EXPECT_FALSE(pane.Shown().blocks.empty());
    const help_viewer::Passage* const marked = pane.Marked();
    EXPECT_EQ(marked == nullptr, pane.MarkedWord().empty());
    if (marked != nullptr) {
      EXPECT_LT(marked->block, pane.Shown().blocks.size());
    }
    EXPECT_FALSE(rig_.printer.is_open);
    EXPECT_EQ(rig_.machine.OpenKeyCount(), 0);
    EXPECT_TRUE(rig_.machine.Misuses().empty());
    for (const auto& box : rig_.machine.Boxes()) {
      EXPECT_TRUE(box.text.starts_with("The topic could not be printed.") ||
                  box.text.starts_with("The topic could not be copied."))
          << box.text;
    }
    rig_.machine.ClearRecords();
  }

  HelpRig rig_;
  RandomActions actions_{*this};
  bool has_surface_ = false;
};

TEST(RandomHelpUser, AlwaysSeesATopicAtAValidPosition) { RunRandomUser<RandomHelpUser>(kEvents); }

}  // namespace
}  // namespace qdix::tests
