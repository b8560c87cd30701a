// The window of the program. Contains what a form designer shows, no behaviour.
#pragma once

#include "launcher/launcher_file.h"
#include "ui/form.h"
#include "ui/lists.h"
#include "ui/simple_controls.h"
#include "ui/text_box.h"

namespace qdix::config_launcher {

inline constexpr const char* kTitle = "Config Launcher";

struct ConfigScreen {
  explicit ConfigScreen(ui::EventDispatcher& dispatcher) : events(dispatcher) {}

  ui::EventDispatcher& events;
  ui::Form Window{events, {.name = "ConfigWindow", .caption = kTitle, .place = {0, 0, 263, 217}}};

  ui::Label lblPrograms{Window,
                        {.name = "lblPrograms",
                         .caption = "Programs, in the order of the launcher:",
                         .place = {7, 7, 140, 8},
                         .access_key = 'P'}};
  /// The names of the entries, in the order of the menu.
  ui::ListBox lstPrograms{Window, {.name = "lstPrograms", .place = {7, 18, 192, 84}}};
  /// How many entries there are, of how many at most.
  ui::Label lblCount{Window, {.name = "lblCount", .place = {150, 7, 50, 8}}};
  ui::Button cmdMoveUp{Window,
                       {.name = "cmdMoveUp",
                        .caption = "Move Up",
                        .tool_tip = "Move the selected program up one place",
                        .place = {206, 18, 50, 14},
                        .access_key = 'U',
                        .enabled = false}};
  ui::Button cmdMoveDown{Window,
                         {.name = "cmdMoveDown",
                          .caption = "Move Down",
                          .tool_tip = "Move the selected program down one place",
                          .place = {206, 36, 50, 14},
                          .access_key = 'D',
                          .enabled = false}};
  ui::Button cmdRemove{Window,
                       {.name = "cmdRemove",
                        .caption = "Remove",
                        .tool_tip = "Remove the selected program from the list",
                        .place = {206, 57, 50, 14},
                        .access_key = 'R',
                        .enabled = false}};

  ui::Label lblName{Window,
                    {.name = "lblName", .caption = "Name:", .place = {7, 111, 54, 8}, .access_key = 'N'}};
  /// The name of an entry in the menu.
  ui::TextBox txtName{
      Window, {.name = "txtName", .place = {64, 109, 135, 14}}, static_cast<int>(launcher::kNameWidth)};
  ui::Button cmdNew{Window,
                    {.name = "cmdNew",
                     .caption = "New",
                     .tool_tip = "Clear the fields for a new program",
                     .place = {206, 109, 50, 14},
                     .access_key = 'e'}};
  ui::Label lblPath{
      Window, {.name = "lblPath", .caption = "Command Line:", .place = {7, 129, 54, 8}, .access_key = 'C'}};
  /// Its command line.
  ui::TextBox txtPath{
      Window, {.name = "txtPath", .place = {64, 127, 135, 14}}, static_cast<int>(launcher::kPathWidth)};
  ui::Button cmdBrowsePath{Window,
                           {.name = "cmdBrowsePath",
                            .caption = "Browse...",
                            .tool_tip = "Find a program to add",
                            .place = {206, 127, 50, 14},
                            .access_key = 'B'}};
  ui::Label lblStartIn{
      Window, {.name = "lblStartIn", .caption = "Start In:", .place = {7, 147, 54, 8}, .access_key = 'S'}};
  /// The folder in which it starts; may be empty.
  ui::TextBox txtStartIn{
      Window, {.name = "txtStartIn", .place = {64, 145, 135, 14}}, static_cast<int>(launcher::kStartInWidth)};
  ui::Button cmdBrowseStartIn{Window,
                              {.name = "cmdBrowseStartIn",
                               .caption = "Browse...",
                               .tool_tip = "Find the folder that the program starts in",
                               .place = {206, 145, 50, 14},
                               .access_key = 'w'}};
  ui::Button cmdAdd{Window,
                    {.name = "cmdAdd",
                     .caption = "Add",
                     .tool_tip = "Add this program to the end of the list",
                     .place = {64, 166, 50, 14},
                     .access_key = 'A'}};
  ui::Button cmdChange{Window,
                       {.name = "cmdChange",
                        .caption = "Change",
                        .tool_tip = "Change the selected program to what you typed",
                        .place = {118, 166, 50, 14},
                        .access_key = 'h',
                        .enabled = false}};

  ui::Button cmdOK{Window,
                   {.name = "cmdOK",
                    .caption = "OK",
                    .tool_tip = "Save the list and close the window",
                    .place = {152, 196, 50, 14}},
                   ui::ButtonRole::kDefault};
  ui::Button cmdCancel{Window,
                       {.name = "cmdCancel", .caption = "Cancel", .place = {206, 196, 50, 14}},
                       ui::ButtonRole::kCancel};
};

}  // namespace qdix::config_launcher
