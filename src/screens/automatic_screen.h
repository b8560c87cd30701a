// The "Automatic" tab: when the automatic release runs and how much it frees. Contains what a form designer
// shows, no behaviour.
#pragma once

#include "ui/lists.h"
#include "ui/ranges.h"
#include "ui/simple_controls.h"
#include "ui/text_box.h"

namespace qdix::screens {

/// Range of the threshold for free memory, in megabytes of 1,024,000 bytes.
inline constexpr ui::ScrollRange kMinRamRange{
    .minimum = 32, .maximum = 1, .small_change = 1, .large_change = 4};
inline constexpr const char* kMinRamTip = "Free up memory when RAM drops below this level";
inline constexpr const char* kHalfRamTip = "Half your physical RAM is a good amount to release";

struct AutomaticScreen {
  explicit AutomaticScreen(ui::Container& on) : page(on) {}

  ui::Container& page;

  ui::Frame FrameAuto{page, {.name = "FrameAuto", .caption = "Automatic Release", .place = {4, 2, 260, 104}}};
  ui::CheckBox Check1{FrameAuto,
                      {.name = "Check1",
                       .caption = "Auto Detection Active",
                       .tool_tip = "Must be ticked for Automatic freeups to take place",
                       .place = {11, 14, 120, 10},
                       .access_key = 'A'}};
  ui::Label lblMinRam{FrameAuto,
                      {.name = "lblMinRam",
                       .caption = "Free up memory when RAM drops below:",
                       .place = {11, 31, 136, 8},
                       .access_key = 'b'}};
  /// Threshold of the automatic release, in megabytes of 1,024,000 bytes. VScroll2 changes it.
  ui::TextBox Text2{FrameAuto, {.name = "Text2", .tool_tip = kMinRamTip, .place = {150, 28, 26, 13}}};
  /// Moves the threshold in Text2 by whole megabytes.
  ui::VerticalScrollBar VScroll2{
      FrameAuto, {.name = "VScroll2", .tool_tip = kMinRamTip, .place = {177, 28, 9, 13}}, kMinRamRange};
  ui::Label lblMinRamUnit{FrameAuto, {.name = "lblMinRamUnit", .caption = "MB", .place = {190, 31, 30, 8}}};
  ui::Label lblInterval{
      FrameAuto,
      {.name = "lblInterval", .caption = "Check RAM every:", .place = {11, 48, 70, 8}, .access_key = 'k'}};
  /// Seconds between two checks of the free memory.
  ui::ListBox List2{FrameAuto,
                    {.name = "List2", .tool_tip = "Intervals for monitoring RAM", .place = {11, 58, 60, 43}}};
  ui::Label lblSeconds{FrameAuto, {.name = "lblSeconds", .caption = "seconds", .place = {75, 58, 40, 8}}};
  ui::Label lblAutoAmount{FrameAuto,
                          {.name = "lblAutoAmount",
                           .caption = "Amount of RAM to Release:",
                           .place = {150, 48, 104, 8},
                           .access_key = 'm'}};
  /// Amount of an automatic release, in megabytes of 1,040,000 bytes.
  ui::ListBox List4{FrameAuto, {.name = "List4", .tool_tip = kHalfRamTip, .place = {150, 58, 60, 43}}};

  ui::Frame FrameAutoCpu{page, {.name = "FrameAutoCpu", .caption = "CPU", .place = {4, 109, 260, 32}}};
  ui::CheckBox Check9{FrameAutoCpu,
                      {.name = "Check9",
                       .caption = "Don't perform automatic freeup unless CPU usage is below",
                       .place = {11, 122, 204, 10},
                       .access_key = 'u'}};
  /// Processor load in percent from which automatic releases wait.
  ui::TextBox Text9{FrameAutoCpu, {.name = "Text9", .place = {218, 120, 24, 13}}};
  ui::Label lblAutoCpuUnit{FrameAutoCpu,
                           {.name = "lblAutoCpuUnit", .caption = "%", .place = {245, 122, 12, 8}}};

  ui::Frame FrameCounter{page, {.name = "FrameCounter", .caption = "Counter", .place = {4, 144, 260, 37}}};
  ui::Button Command7{
      FrameCounter,
      {.name = "Command7", .caption = "Reset Counter ->", .place = {11, 157, 66, 14}, .access_key = 'R'}};
  ui::Label lblCounter{
      FrameCounter,
      {.name = "lblCounter",
       .caption =
           "The Auto Detection feature has detected and released RAM 0 times since Q-DIX was started at",
       .place = {84, 154, 172, 25}}};

  ui::Button Command22{page,
                       {.name = "Command22",
                        .caption = "Help / Tips",
                        .tool_tip = "Opens the help for this tab",
                        .place = {198, 183, 66, 14},
                        .access_key = 'T'}};
};

}  // namespace qdix::screens
