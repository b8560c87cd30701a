// The "Quondix" tab: memory gauges, CPU graph, "Free Up RAM Now". Contains what a form designer shows, no
// behaviour.
#pragma once

#include "controls/meter3.h"
#include "controls/x_graph_meter.h"
#include "ui/lists.h"
#include "ui/ranges.h"
#include "ui/simple_controls.h"
#include "ui/text_box.h"

namespace qdix::screens {

/// Range of the number of passes, for every kind of release.
inline constexpr ui::ScrollRange kTryTimesRange{
    .minimum = 20, .maximum = 1, .small_change = 1, .large_change = 5};
inline constexpr const char* kTryTimesTip = "Number of times Q-DIX will attempt to free up RAM at one time";

struct QuondixScreen {
  explicit QuondixScreen(ui::Container& on) : page(on) {}

  ui::Container& page;

  ui::Frame FrameMemory{page, {.name = "FrameMemory", .caption = "Memory", .place = {4, 2, 260, 66}}};
  /// Total physical memory.
  ui::Label lblTotalMem{FrameMemory, {.name = "lblTotalMem", .place = {11, 13, 244, 8}}};
  /// Available share of the physical memory.
  controls::Meter3 Gauge1{FrameMemory, {.name = "Gauge1", .place = {11, 22, 107, 13}}};
  /// The share of Gauge1 as text.
  ui::Label lblPercentFree{FrameMemory, {.name = "lblPercentFree", .place = {124, 24, 131, 8}}};
  /// Size of the swap file.
  ui::Label lblSwapfile{FrameMemory, {.name = "lblSwapfile", .place = {11, 41, 244, 8}}};
  /// Used share of the swap file.
  controls::Meter3 Gauge2{FrameMemory, {.name = "Gauge2", .place = {11, 50, 107, 13}}};
  ui::Label lblSwapfileUsed{FrameMemory,
                            {.name = "lblSwapfileUsed", .caption = "%  Used", .place = {124, 52, 131, 8}}};

  ui::Frame FrameCpu{page, {.name = "FrameCpu", .caption = "CPU Usage", .place = {4, 70, 260, 61}}};
  /// Processor load, a bar per reading. A release adds a full bar.
  controls::XGraphMeter XGraphMeter1{FrameCpu,
                                     {.name = "XGraphMeter1", .place = {11, 82, 132, 42}},
                                     {.back_colour = ui::kMenuBackground, .fore_colour = 0x000000FFU}};
  ui::Label lblUSAGE{FrameCpu, {.name = "lblUSAGE", .caption = "0 %", .place = {150, 82, 28, 8}}};
  ui::Label lblWindowsOnly{
      FrameCpu, {.name = "lblWindowsOnly", .caption = "(For Win 95/98/ME)", .place = {180, 82, 78, 8}}};
  ui::Label lblCPU{FrameCpu, {.name = "lblCPU", .caption = "CPU Speed :", .place = {150, 95, 108, 32}}};

  ui::Frame FrameRelease{page, {.name = "FrameRelease", .caption = "Release", .place = {4, 133, 164, 67}}};
  ui::Label lblAmount{
      FrameRelease,
      {.name = "lblAmount", .caption = "Amount of RAM:", .place = {11, 144, 56, 8}, .access_key = 'A'}};
  /// Amount of a manual release, in megabytes of 1,040,000 bytes.
  ui::ListBox List1{FrameRelease, {.name = "List1", .place = {11, 154, 56, 43}}};
  ui::Label lblRetries{
      FrameRelease,
      {.name = "lblRetries", .caption = "Number of Retrys", .place = {76, 144, 82, 8}, .access_key = 'R'}};
  /// Passes of a release, 1 to 20. VScroll1 changes it.
  ui::TextBox Text1{FrameRelease, {.name = "Text1", .tool_tip = kTryTimesTip, .place = {76, 154, 26, 13}}};
  /// Moves the number in Text1.
  ui::VerticalScrollBar VScroll1{FrameRelease,
                                 {.name = "VScroll1", .tool_tip = kTryTimesTip, .place = {103, 154, 9, 13}},
                                 kTryTimesRange};
  ui::Label lblTimes{FrameRelease, {.name = "lblTimes", .caption = "times", .place = {116, 156, 42, 8}}};
  ui::Button Command1{
      FrameRelease,
      {.name = "Command1", .caption = "Free Up RAM Now", .place = {76, 177, 82, 16}, .access_key = 'F'},
      ui::ButtonRole::kDefault};

  ui::Button Command3{page,
                      {.name = "Command3",
                       .caption = "Pause All Activity",
                       .tool_tip = "Pause Q-DIX operation",
                       .place = {174, 136, 90, 14},
                       .access_key = 's'}};
  ui::Button Command4{page,
                      {.name = "Command4",
                       .caption = "Minimize To Taskbar",
                       .tool_tip = "Minimizes, but shows available RAM in Taskbar",
                       .place = {174, 153, 90, 14},
                       .access_key = 'M'}};
  ui::Button Command2{page,
                      {.name = "Command2",
                       .caption = "Hide",
                       .tool_tip = "Hide Q-DIX  while running in background",
                       .place = {174, 170, 90, 14},
                       .access_key = 'H'}};

  ui::Button Command21{page,
                       {.name = "Command21",
                        .caption = "Help / Tips",
                        .tool_tip = "Opens the help for this tab",
                        .place = {174, 186, 90, 14},
                        .access_key = 'T'}};
};

}  // namespace qdix::screens
