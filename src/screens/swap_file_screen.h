// The "Optimize Swapfile" tab: who manages the swap file, where it is and how large. Contains what a form
// designer shows, no behaviour.
#pragma once

#include "screens/picture_numbers.h"
#include "ui/lists.h"
#include "ui/ranges.h"
#include "ui/simple_controls.h"
#include "ui/text_box.h"

namespace qdix::screens {

/// In megabytes of 1,024 kilobytes. The arrows move by 5, a click beside the thumb by 10.
inline constexpr ui::ScrollRange kSwapSizeRange{
    .minimum = 32750, .maximum = 0, .small_change = 5, .large_change = 10};
inline constexpr const char* kSwapSizeTip = "Least and greatest size of the swap file in megabytes";

struct SwapFileScreen {
  explicit SwapFileScreen(ui::Container& on) : page(on) {}

  ui::Container& page;

  ui::Frame FrameSetup{page, {.name = "FrameSetup", .caption = "Virtual Memory", .place = {4, 2, 260, 52}}};
  ui::OptionButton optSwap1{FrameSetup,
                            {.name = "optSwap1",
                             .caption = "Windows Default - Let Windows manage the Swapfile (Not Optimized)",
                             .place = {11, 13, 248, 10},
                             .access_key = 'W'}};
  ui::OptionButton optSwap2{FrameSetup,
                            {.name = "optSwap2",
                             .caption = "Optimize Windows Virtual Memory Swapfile",
                             .place = {11, 26, 248, 10},
                             .access_key = 'O'}};
  ui::OptionButton optSwap3{FrameSetup,
                            {.name = "optSwap3",
                             .caption = "Other setup currently configured (Not Optimized)",
                             .place = {11, 39, 248, 10},
                             .access_key = 't'}};

  ui::Frame Frame11{page, {.name = "Frame11", .caption = "Optimize Swapfile", .place = {4, 57, 260, 68}}};
  ui::Label lblHardDisk{
      Frame11,
      {.name = "lblHardDisk", .caption = "Hard Disk :", .place = {11, 71, 52, 8}, .access_key = 'H'}};
  /// Drives for the swap file.
  ui::DropDownList Combo3{
      Frame11,
      {.name = "Combo3", .tool_tip = "The disk that the swap file is kept on", .place = {66, 69, 110, 90}}};
  ui::Label lblSwapSize{
      Frame11,
      {.name = "lblSwapSize", .caption = "Swapfile Size :", .place = {11, 88, 52, 8}, .access_key = 'z'}};
  /// Size of the swap file, in megabytes of 1,024 KB. VScroll4 changes it.
  ui::TextBox Text8{Frame11, {.name = "Text8", .tool_tip = kSwapSizeTip, .place = {66, 86, 50, 13}}};
  /// Moves the size in Text8.
  ui::VerticalScrollBar VScroll4{
      Frame11, {.name = "VScroll4", .tool_tip = kSwapSizeTip, .place = {117, 86, 9, 13}}, kSwapSizeRange};
  ui::Label lblSwapUnit{Frame11, {.name = "lblSwapUnit", .caption = "MB", .place = {130, 88, 20, 8}}};
  ui::Button cmdBeginnerSwapFile{Frame11,
                                 {.name = "cmdBeginnerSwapFile",
                                  .caption = "Suggested Configuration (Beginners)",
                                  .tool_tip = "Proposes a disk and a size; nothing is written yet",
                                  .place = {66, 105, 134, 14},
                                  .access_key = 'g'}};

  ui::Frame FrameDefrag{
      page, {.name = "FrameDefrag", .caption = "Before You Change It", .place = {4, 128, 260, 49}}};
  ui::Label Label35{FrameDefrag,
                    {.name = "Label35",
                     .caption = "It is a good idea to run a disk defragmentation and reboot before "
                                "configuring your Swapfile settings.",
                     .place = {11, 139, 246, 16}}};
  ui::Label lblRunDefrag{FrameDefrag,
                         {.name = "lblRunDefrag", .caption = "Run Defrag -->", .place = {11, 161, 52, 8}}};
  ui::Button Command26{FrameDefrag,
                       {.name = "Command26",
                        .caption = "Disk Defragmenter",
                        .tool_tip = "Closes Q-DIX and runs the Disk Defragmenter on the disk above",
                        .place = {66, 158, 80, 14},
                        .access_key = 'D'}};

  ui::Button Command18{page,
                       {.name = "Command18",
                        .caption = "Save Changes",
                        .tool_tip = "Writes this configuration; it takes effect when Windows restarts",
                        .place = {4, 183, 66, 14},
                        .access_key = 'S'}};

  ui::Button Command20{page,
                       {.name = "Command20",
                        .caption = "Help / Tips",
                        .tool_tip = "Opens the help for this tab",
                        .place = {198, 183, 66, 14},
                        .access_key = 'p'},
                       ui::ButtonRole::kPlain,
                       kLightBulbPicture};
};

}  // namespace qdix::screens
