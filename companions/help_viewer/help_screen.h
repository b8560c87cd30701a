// The window of the program: what a form designer shows, and how it adapts to the size of the window. No
// other behaviour.
#pragma once

#include <algorithm>

#include "help_viewer/topic_pane.h"
#include "ui/form.h"
#include "ui/lists.h"
#include "ui/simple_controls.h"
#include "ui/text_box.h"

namespace qdix::help_viewer {

/// Title of the window, by which the main program finds it. No other window has this title.
inline constexpr const char* kWindowTitle = "Quondix Help";
/// Title of the application and its message boxes.
inline constexpr const char* kTitle = "Q-DIX Help";

/// In dialog units.
inline constexpr std::int16_t kMargin = 7;
inline constexpr std::int16_t kGap = 4;
inline constexpr std::int16_t kButtonHeight = 14;
inline constexpr std::int16_t kPanesTop = kMargin + kButtonHeight + kMargin;
inline constexpr std::int16_t kFoundTop = kPanesTop + 41;

/// The lists and the pane have no place until Arrange runs: it depends on the size of the window.
struct HelpScreen {
  explicit HelpScreen(ui::EventDispatcher& dispatcher) : events(dispatcher) { Arrange(); }

  ui::EventDispatcher& events;
  ui::Form Window{events,
                  {.name = "HelpWindow", .caption = kWindowTitle, .place = {0, 0, 396, 250}},
                  {.width = 286, .height = 130}};

  ui::Button cmdContents{Window,
                         {.name = "cmdContents",
                          .caption = "Contents",
                          .tool_tip = "List all topics",
                          .place = {7, 7, 50, kButtonHeight},
                          .access_key = 'C'}};
  ui::Button cmdBack{Window,
                     {.name = "cmdBack",
                      .caption = "Back",
                      .tool_tip = "Go back to the previous topic",
                      .place = {61, 7, 50, kButtonHeight},
                      .access_key = 'B',
                      .enabled = false}};
  ui::Button cmdFind{Window,
                     {.name = "cmdFind",
                      .caption = "Find",
                      .tool_tip = "Find the topics that contain a word",
                      .place = {115, 7, 50, kButtonHeight},
                      .access_key = 'F'}};
  ui::Button cmdPrint{Window,
                      {.name = "cmdPrint",
                       .caption = "Print...",
                       .tool_tip = "Print this topic",
                       .place = {169, 7, 50, kButtonHeight},
                       .access_key = 'P'}};
  ui::Button cmdCopy{Window,
                     {.name = "cmdCopy",
                      .caption = "Copy Topic",
                      .tool_tip = "Copy the text of the whole topic to the clipboard (Ctrl+C)",
                      .place = {223, 7, 50, kButtonHeight},
                      .access_key = 'y'}};

  /// The titles of all topics.
  ui::ListBox lstContents{Window, {.name = "lstContents"}};
  ui::Label lblWord{Window,
                    {.name = "lblWord", .caption = "Word to find:", .access_key = 'W', .visible = false}};
  /// Part of a word, in any case.
  ui::TextBox txtWord{Window, {.name = "txtWord", .visible = false}, 60};
  ui::Label lblFound{Window,
                     {.name = "lblFound", .caption = "Topics found:", .access_key = 'T', .visible = false}};
  /// The titles of the topics with this word.
  ui::ListBox lstFound{Window,
                       {.name = "lstFound",
                        .tool_tip = "Press Enter or double-click to open a topic, again for the next match",
                        .visible = false}};
  /// The topic itself.
  TopicPane paneTopic{Window, {.name = "paneTopic"}};

  /// Places the lists and the pane for the current size of the window.
  void Arrange() {
    const ui::Place& window = Window.GetPlace();
    const auto side = static_cast<std::int16_t>(std::clamp(window.width * 34 / 100, 90, 160));
    const auto bottom = static_cast<std::int16_t>(window.height - kMargin);
    lstContents.SetPlace({kMargin, kPanesTop, side, Between(kPanesTop, bottom)});
    lblWord.SetPlace({kMargin, kPanesTop, side, 8});
    txtWord.SetPlace({kMargin, kPanesTop + 10, side, 14});
    lblFound.SetPlace({kMargin, kPanesTop + 30, side, 8});
    lstFound.SetPlace({kMargin, kFoundTop, side, Between(kFoundTop, bottom)});
    const auto pane_left = static_cast<std::int16_t>(kMargin + side + kGap);
    const auto pane_right = static_cast<std::int16_t>(window.width - kMargin);
    paneTopic.SetPlace({pane_left, kPanesTop, Between(pane_left, pane_right), Between(kPanesTop, bottom)});
  }

 private:
  /// Returns a length of at least 1: while Windows arranges a window, it can be smaller than its minimum
  /// size.
  static std::int16_t Between(std::int16_t begin, std::int16_t end) {
    return static_cast<std::int16_t>(std::max(end - begin, 1));
  }
};

}  // namespace qdix::help_viewer
