// The "Launcher" tab: the user's programs, and how much memory to free before starting one. Contains what a
// form designer shows, no behaviour.
#pragma once

#include <array>

#include "ui/lists.h"
#include "ui/simple_controls.h"

namespace qdix::screens {

struct LauncherScreen {
  explicit LauncherScreen(ui::Container& on) : page(on) {}

  ui::Container& page;

  ui::Label lblPrograms{
      page, {.name = "lblPrograms", .caption = "Programs :", .place = {5, 4, 90, 8}, .access_key = 'P'}};
  /// Programs of the launcher, in the order of its file.
  ui::ListBox List5{
      page, {.name = "List5", .tool_tip = "Double click a program to launch", .place = {4, 14, 96, 146}}};
  ui::Button Command15{page,
                       {.name = "Command15",
                        .caption = "Configure Program List",
                        .tool_tip = "Opens the editor of this list",
                        .place = {4, 164, 96, 14},
                        .access_key = 'f'}};

  ui::Frame FrameLauncher{page,
                          {.name = "FrameLauncher",
                           .caption = "Free Up Before A Program Is Launched",
                           .place = {106, 2, 158, 66}}};
  ui::OptionButton Option9{FrameLauncher,
                           {.name = "Option9",
                            .caption = "33% of My Total RAM   (Conservative)",
                            .place = {113, 14, 146, 10},
                            .access_key = 'C'}};
  ui::OptionButton Option8{FrameLauncher,
                           {.name = "Option8",
                            .caption = "50%  of My Total RAM  (Normal)",
                            .place = {113, 27, 146, 10},
                            .access_key = 'N'}};
  ui::OptionButton Option7{FrameLauncher,
                           {.name = "Option7",
                            .caption = "66% of My Total RAM   (Aggressive)",
                            .place = {113, 40, 146, 10},
                            .access_key = 'g'}};
  ui::OptionButton Option6{FrameLauncher,
                           {.name = "Option6",
                            .caption = "Don't Free Up Any RAM",
                            .place = {113, 53, 146, 10},
                            .access_key = 'D'}};

  ui::Frame FrameRetries{
      page, {.name = "FrameRetries", .caption = "Number of Retrys", .place = {106, 71, 158, 28}}};
  using Retries = std::array<ui::OptionButton, 5>;
  Retries Slider_6{{{FrameRetries, {.name = "Slider_6(0)", .caption = "1", .place = {113, 83, 24, 10}}},
                    {FrameRetries, {.name = "Slider_6(1)", .caption = "2", .place = {142, 83, 24, 10}}},
                    {FrameRetries, {.name = "Slider_6(2)", .caption = "3", .place = {171, 83, 24, 10}}},
                    {FrameRetries, {.name = "Slider_6(3)", .caption = "4", .place = {200, 83, 24, 10}}},
                    {FrameRetries, {.name = "Slider_6(4)", .caption = "5", .place = {229, 83, 24, 10}}}}};

  /// Shown while memory is freed for a program of the list.
  ui::Label txtFreeLabel{page,
                         {.name = "txtFreeLabel",
                          .caption = "Freeing Up Memory",
                          .place = {107, 104, 120, 8},
                          .visible = false}};

  ui::Button Command16{page,
                       {.name = "Command16",
                        .caption = "Help / Tips",
                        .tool_tip = "Opens the help for this tab",
                        .place = {198, 183, 66, 14},
                        .access_key = 'T'}};
};

}  // namespace qdix::screens
