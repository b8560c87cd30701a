// The "Cache Settings" tab: sizes of the disk cache, and presets for them. Contains what a form designer
// shows, no behaviour.
#pragma once

#include "ui/lists.h"
#include "ui/ranges.h"
#include "ui/simple_controls.h"

namespace qdix::screens {

/// Size of the disk cache in kilobytes. The load sets the maximum from the machine's memory.
inline constexpr ui::SliderRange kCacheSizeRange{
    .minimum = 512, .maximum = 512, .value = 512, .small_change = 512, .large_change = 4096};
/// Kilobytes that the cache reads at once.
inline constexpr ui::SliderRange kChunkRange{
    .minimum = 512, .maximum = 4096, .value = 512, .small_change = 512, .large_change = 1024, .step = 512};
/// Entries of the name cache. Windows uses 677 on a desktop computer.
inline constexpr ui::SliderRange kNameCacheRange{
    .minimum = 256, .maximum = 8192, .value = 677, .small_change = 64, .large_change = 512};
/// Entries of the directory cache. Windows uses 32 on a desktop computer.
inline constexpr ui::SliderRange kDirectoryCacheRange{
    .minimum = 8, .maximum = 256, .value = 32, .small_change = 8, .large_change = 32};

inline constexpr const char* kSavedSizeTip =
    "When not ticked, saving removes this setting and Windows chooses the size";

struct CacheScreen {
  explicit CacheScreen(ui::Container& on) : page(on) {}

  ui::Container& page;

  ui::Label lblPreset{
      page, {.name = "lblPreset", .caption = "Preset :", .place = {11, 6, 32, 8}, .access_key = 'P'}};
  /// Presets of the disk cache; shows the one that the sliders match.
  ui::DropDownList Combo2{page,
                          {.name = "Combo2",
                           .tool_tip = "Sizes that suit a use of the computer, worked out from its memory",
                           .place = {45, 4, 130, 150}},
                          ui::CodeFiresClick::kNo};

  ui::Frame FrameCache{page, {.name = "FrameCache", .caption = "Disk Cache", .place = {4, 20, 260, 101}}};
  ui::CheckBox Check5{FrameCache,
                      {.name = "Check5",
                       .caption = "Enabled",
                       .tool_tip = kSavedSizeTip,
                       .place = {214, 31, 43, 10},
                       .access_key = 'E'}};
  ui::Label lblMinCache{FrameCache,
                        {.name = "lblMinCache",
                         .caption = "Min Cache Size : ",
                         .place = {11, 32, 190, 8},
                         .access_key = 'M',
                         .enabled = false}};
  /// MinFileCache, in KB.
  ui::Slider Slider1{
      FrameCache, {.name = "Slider1", .place = {8, 41, 250, 18}, .enabled = false}, kCacheSizeRange};
  ui::CheckBox Check6{FrameCache,
                      {.name = "Check6",
                       .caption = "Enabled",
                       .tool_tip = kSavedSizeTip,
                       .place = {214, 61, 43, 10},
                       .access_key = 'b'}};
  ui::Label lblMaxCache{FrameCache,
                        {.name = "lblMaxCache",
                         .caption = "Max Cache Size : ",
                         .place = {11, 62, 190, 8},
                         .access_key = 'x',
                         .enabled = false}};
  /// MaxFileCache, in KB.
  ui::Slider Slider2{
      FrameCache, {.name = "Slider2", .place = {8, 71, 250, 18}, .enabled = false}, kCacheSizeRange};
  ui::CheckBox Check7{FrameCache,
                      {.name = "Check7",
                       .caption = "Enabled",
                       .tool_tip = kSavedSizeTip,
                       .place = {214, 91, 43, 10},
                       .access_key = 'l'}};
  ui::Label lblChunkSize{FrameCache,
                         {.name = "lblChunkSize",
                          .caption = "Chunk Size : ",
                          .place = {11, 92, 190, 8},
                          .access_key = 'C',
                          .enabled = false}};
  /// ChunkSize, in KB.
  ui::Slider Slider3{
      FrameCache, {.name = "Slider3", .place = {8, 101, 250, 18}, .enabled = false}, kChunkRange};

  ui::Frame FrameFileCache{page,
                           {.name = "FrameFileCache", .caption = "File Cache", .place = {4, 123, 260, 54}}};
  ui::CheckBox Check8{FrameFileCache,
                      {.name = "Check8",
                       .caption = "File Cache Settings Enabled",
                       .tool_tip = "When not ticked, saving removes both settings",
                       .place = {11, 134, 130, 10},
                       .access_key = 'F'}};
  ui::Label lblNameCache{FrameFileCache,
                         {.name = "lblNameCache",
                          .caption = "Name Cache : ",
                          .place = {11, 147, 116, 8},
                          .access_key = 'N',
                          .enabled = false}};
  /// NameCache, in entries.
  ui::Slider Slider4{
      FrameFileCache, {.name = "Slider4", .place = {8, 156, 122, 18}, .enabled = false}, kNameCacheRange};
  ui::Label lblDirectoryCache{FrameFileCache,
                              {.name = "lblDirectoryCache",
                               .caption = "Directory Cache : ",
                               .place = {139, 147, 116, 8},
                               .access_key = 'D',
                               .enabled = false}};
  /// PathCache, in entries.
  ui::Slider Slider5{FrameFileCache,
                     {.name = "Slider5", .place = {136, 156, 122, 18}, .enabled = false},
                     kDirectoryCacheRange};

  ui::Button Command11{page,
                       {.name = "Command11",
                        .caption = "Save Settings",
                        .tool_tip = "Writes these settings; they take effect when Windows restarts",
                        .place = {4, 183, 66, 14},
                        .access_key = 'S'}};
  ui::Button Command14{page,
                       {.name = "Command14",
                        .caption = "System Defaults",
                        .tool_tip = "Clears all boxes; the next save gives the sizes back to Windows",
                        .place = {74, 183, 66, 14},
                        .access_key = 'y'}};

  ui::Button Command19{page,
                       {.name = "Command19",
                        .caption = "Help / Tips",
                        .tool_tip = "Opens the help for this tab",
                        .place = {198, 183, 66, 14},
                        .access_key = 'T'}};
};

}  // namespace qdix::screens
