// The "About" tab. Contains what a form designer shows, no behaviour.
#pragma once

#include "screens/picture_numbers.h"
#include "ui/simple_controls.h"

namespace qdix::screens {

struct AboutScreen {
  explicit AboutScreen(ui::Container& on) : page(on) {}

  ui::Container& page;

  /// The program's icon.
  ui::Picture imgProgram{page, {.name = "imgProgram", .place = {11, 11, 22, 20}}, kProgramPicture};
  ui::Label lblProduct{page, {.name = "lblProduct", .caption = "Q-DIX", .place = {40, 11, 24, 8}}};
  /// The version, as in "v2.10".
  ui::Label lblVersion{page, {.name = "lblVersion", .place = {65, 11, 60, 8}}};
  ui::Label lblFor{
      page,
      {.name = "lblFor", .caption = "Memory utility for Windows 95, 98 and ME", .place = {40, 22, 220, 8}}};
  ui::Label lblPurpose{
      page,
      {.name = "lblPurpose",
       .caption = "Shows how much memory is available and makes Windows hand memory back: when "
                  "you ask for it, when it runs short, at intervals, after startup and before a "
                  "program is launched.",
       .place = {11, 42, 246, 26}}};
  ui::Label lblRights{
      page,
      {.name = "lblRights",
       .caption = "Copyright (c) 2026 The Q-DIX authors. Free software; see LICENSE.TXT for its terms.",
       .place = {11, 74, 246, 16}}};

  ui::Button Command6{page,
                      {.name = "Command6",
                       .caption = "Help",
                       .tool_tip = "Opens the manual in your browser",
                       .place = {128, 183, 66, 14},
                       .access_key = 'H'}};
  ui::Button Command17{page,
                       {.name = "Command17",
                        .caption = "Help / Tips",
                        .tool_tip = "Opens the help for this tab",
                        .place = {198, 183, 66, 14},
                        .access_key = 'T'}};
};

}  // namespace qdix::screens
