// The "Startup / Other" tab: starting with Windows, the display at start, the start-up release, and other
// settings. Contains what a form designer shows, no behaviour.
#pragma once

#include "ui/lists.h"
#include "ui/ranges.h"
#include "ui/simple_controls.h"
#include "ui/text_box.h"

namespace qdix::screens {

/// Range of the start-up delay in seconds.
inline constexpr ui::ScrollRange kStartupTimeRange{
    .minimum = 240, .maximum = 1, .small_change = 1, .large_change = 10};
inline constexpr const char* kStartupTimeTip = "Time to wait after startup before freeing up RAM";

struct StartupScreen {
  explicit StartupScreen(ui::Container& on) : page(on) {}

  ui::Container& page;

  ui::Frame FrameStartup{
      page, {.name = "FrameStartup", .caption = "When I startup my computer", .place = {4, 2, 260, 64}}};
  ui::CheckBox Check2{FrameStartup,
                      {.name = "Check2",
                       .caption = "Automatically launch Q-DIX",
                       .tool_tip = "Allow Q-DIX to start when the computer is started",
                       .place = {11, 14, 130, 10},
                       .access_key = 'l'}};
  ui::Button Command5{FrameStartup,
                      {.name = "Command5",
                       .caption = "Create shortcut Icon on desktop",
                       .tool_tip = "Place a Q-DIX Shortcut Icon on your Desktop",
                       .place = {143, 12, 114, 14},
                       .access_key = 'C'}};
  ui::Label lblStartupAmount{FrameStartup,
                             {.name = "lblStartupAmount",
                              .caption = "Amount of RAM to Release:",
                              .place = {11, 32, 92, 8},
                              .access_key = 'A'}};
  /// Amount of the release after start-up, in megabytes of 1,040,000 bytes.
  ui::DropDownList Combo1{FrameStartup, {.name = "Combo1", .place = {106, 30, 60, 80}}};
  ui::Label lblStartupTime{FrameStartup,
                           {.name = "lblStartupTime",
                            .caption = "Wait before freeing up RAM:",
                            .place = {11, 49, 92, 8},
                            .access_key = 'W'}};
  /// Delay of the release after start-up, in seconds. VScroll3 changes it.
  ui::TextBox Text3{FrameStartup, {.name = "Text3", .tool_tip = kStartupTimeTip, .place = {106, 47, 30, 13}}};
  /// Moves the number in Text3.
  ui::VerticalScrollBar VScroll3{FrameStartup,
                                 {.name = "VScroll3", .tool_tip = kStartupTimeTip, .place = {137, 47, 9, 13}},
                                 kStartupTimeRange};
  ui::Label lblStartupSeconds{FrameStartup,
                              {.name = "lblStartupSeconds", .caption = "seconds", .place = {150, 49, 40, 8}}};

  ui::Frame FrameDisplay{
      page, {.name = "FrameDisplay", .caption = "Display at Startup", .place = {4, 69, 126, 54}}};
  ui::OptionButton Option1{
      FrameDisplay,
      {.name = "Option1", .caption = "Fully Displayed", .place = {11, 81, 112, 10}, .access_key = 'F'}};
  ui::OptionButton Option2{
      FrameDisplay,
      {.name = "Option2", .caption = "Minimized in Taskbar", .place = {11, 94, 112, 10}, .access_key = 'M'}};
  ui::OptionButton Option3{
      FrameDisplay, {.name = "Option3", .caption = "Hidden", .place = {11, 107, 112, 10}, .access_key = 'H'}};

  ui::Frame FrameGraph{
      page, {.name = "FrameGraph", .caption = "CPU Graph Update Interval", .place = {138, 69, 126, 54}}};
  /// Ticks of the display timer between two bars of the graph; 1 is "Faster".
  ui::Slider Slider7{FrameGraph,
                     {.name = "Slider7", .place = {145, 82, 112, 20}},
                     {.minimum = 1, .maximum = 5, .value = 1, .small_change = 1, .large_change = 1}};
  ui::Label lblFaster{FrameGraph, {.name = "lblFaster", .caption = "Faster", .place = {147, 106, 40, 8}}};
  ui::Label lblSlower{FrameGraph, {.name = "lblSlower", .caption = "Slower", .place = {233, 106, 26, 8}}};

  ui::Frame FrameOther{page, {.name = "FrameOther", .caption = "Warnings", .place = {4, 126, 260, 30}}};
  ui::CheckBox Check4{FrameOther,
                      {.name = "Check4",
                       .caption = "Resources Warning",
                       .tool_tip = "This should normally be left un-checked",
                       .place = {11, 139, 78, 10},
                       .access_key = 'R'}};
  ui::Label lblAutoAndTime{
      FrameOther, {.name = "lblAutoAndTime", .caption = "(Auto & Time Only)", .place = {92, 140, 90, 8}}};

  ui::Frame FrameUpTime{page, {.name = "FrameUpTime", .caption = "System", .place = {4, 159, 260, 22}}};
  ui::Label lblTimeRunning{FrameUpTime,
                           {.name = "lblTimeRunning",
                            .caption = "Your system has been running for 0  hours and 5 minutes",
                            .place = {11, 169, 244, 8}}};

  ui::Button Command24{page,
                       {.name = "Command24",
                        .caption = "Help / Tips",
                        .tool_tip = "Opens the help for this tab",
                        .place = {198, 183, 66, 14},
                        .access_key = 'T'}};
};

}  // namespace qdix::screens
