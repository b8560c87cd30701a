// The "Time Intervals" tab: the timed release. Contains what a form designer shows, no behaviour.
#pragma once

#include "screens/automatic_screen.h"

namespace qdix::screens {

struct TimeIntervalsScreen {
  explicit TimeIntervalsScreen(ui::Container& on) : page(on) {}

  ui::Container& page;

  ui::Frame FrameTime{page, {.name = "FrameTime", .caption = "Timed Release", .place = {4, 2, 260, 112}}};
  ui::CheckBox Check3{FrameTime,
                      {.name = "Check3",
                       .caption = "Time Releases Active",
                       .tool_tip = "Must be ticked for Timed freeups to take place",
                       .place = {11, 14, 120, 10},
                       .access_key = 'A'}};
  ui::Label lblUnit{
      FrameTime,
      {.name = "lblUnit", .caption = "Release RAM every:", .place = {11, 32, 66, 8}, .access_key = 'R'}};
  /// Interval of the timed release, in the unit that is selected beside it.
  ui::ListBox lstTime{
      FrameTime,
      {.name = "lstTime", .tool_tip = "Time interval at which RAM is Released", .place = {11, 42, 60, 51}}};
  ui::Frame FrameUnit{FrameTime, {.name = "FrameUnit", .caption = "Unit", .place = {78, 38, 62, 38}}};
  ui::OptionButton Option4{
      FrameUnit, {.name = "Option4", .caption = "Minutes", .place = {84, 49, 50, 10}, .access_key = 'n'}};
  ui::OptionButton Option5{
      FrameUnit, {.name = "Option5", .caption = "Hours", .place = {84, 62, 50, 10}, .access_key = 'o'}};
  ui::Label lblTimeAmount{FrameTime,
                          {.name = "lblTimeAmount",
                           .caption = "Amount of RAM to Release:",
                           .place = {150, 32, 104, 8},
                           .access_key = 'm'}};
  /// Amount of a timed release, in megabytes of 1,040,000 bytes.
  ui::ListBox List3{FrameTime, {.name = "List3", .tool_tip = kHalfRamTip, .place = {150, 42, 60, 51}}};
  /// When the next release is due.
  ui::Label lblNextRelease{FrameTime,
                           {.name = "lblNextRelease", .place = {11, 100, 244, 8}, .visible = false}};

  ui::Frame FrameTimeCpu{page, {.name = "FrameTimeCpu", .caption = "CPU", .place = {4, 117, 260, 32}}};
  ui::CheckBox Check10{FrameTimeCpu,
                       {.name = "Check10",
                        .caption = "Don't perform time freeup unless CPU usage is below",
                        .place = {11, 130, 204, 10},
                        .access_key = 'u'}};
  /// Processor load in percent from which timed releases wait.
  ui::TextBox Text10{FrameTimeCpu, {.name = "Text10", .place = {218, 128, 24, 13}}};
  ui::Label lblTimeCpuUnit{FrameTimeCpu,
                           {.name = "lblTimeCpuUnit", .caption = "%", .place = {245, 130, 12, 8}}};

  ui::Button Command23{page,
                       {.name = "Command23",
                        .caption = "Help / Tips",
                        .tool_tip = "Opens the help for this tab",
                        .place = {198, 183, 66, 14},
                        .access_key = 'T'}};
};

}  // namespace qdix::screens
