// The window of the program. Contains what a form designer shows, no behaviour.
#pragma once

#include <array>

#include "ui/form.h"
#include "ui/simple_controls.h"

namespace qdix::undo {

/// Columns of the rows, in dialog units.
inline constexpr std::int16_t kNameLeft = 14;
inline constexpr std::int16_t kBeforeLeft = 98;
inline constexpr std::int16_t kNowLeft = 203;
inline constexpr std::int16_t kNameWidth = 82;
inline constexpr std::int16_t kBeforeWidth = 102;
inline constexpr std::int16_t kNowWidth = 48;
/// Maximum number of characters that fit into each column.
inline constexpr std::size_t kBeforeCharacters = 24;
inline constexpr std::size_t kBackupCharacters = 8;
inline constexpr std::size_t kNowCharacters = 11;

/// The parts of a row's design that differ from row to row.
struct RowDesign {
  ui::ControlName box;
  ui::ControlName before;
  ui::ControlName now;
  const char* caption;
  char access_key;
  const char* tool_tip;
  std::int16_t top;
};

/// One entry: the check box that selects it, its previous value, its current value.
struct EntryRow {
  EntryRow(ui::Container& on, const RowDesign& design)
      : box(on, {.name = design.box,
                 .caption = design.caption,
                 .tool_tip = design.tool_tip,
                 .place = {kNameLeft, design.top, kNameWidth, 10},
                 .access_key = design.access_key,
                 .enabled = false}),
        before(on, {.name = design.before, .place = {kBeforeLeft, Line(design.top), kBeforeWidth, 8}}),
        now(on, {.name = design.now, .place = {kNowLeft, Line(design.top), kNowWidth, 8}}) {}

  /// A label beside a check box is one unit lower, so their texts are on one line.
  static constexpr std::int16_t Line(std::int16_t top) { return static_cast<std::int16_t>(top + 1); }

  ui::CheckBox box;
  ui::Label before;
  ui::Label now;
};

struct UndoScreen {
  explicit UndoScreen(ui::EventDispatcher& dispatcher) : events(dispatcher) {}

  ui::EventDispatcher& events;
  ui::Form Window{events, {.name = "UndoWindow", .caption = "Q-DIX Undo", .place = {0, 0, 263, 256}}};

  /// Whether there is a record, and what can be put back from it.
  ui::Label lblState{Window, {.name = "lblState", .place = {7, 7, 249, 24}}};

  ui::Label lblEntry{Window, {.name = "lblEntry", .caption = "Setting", .place = {kNameLeft, 37, 80, 8}}};
  ui::Label lblBefore{
      Window, {.name = "lblBefore", .caption = "Before", .place = {kBeforeLeft, 37, kBeforeWidth, 8}}};
  ui::Label lblNow{Window, {.name = "lblNow", .caption = "Now", .place = {kNowLeft, 37, kNowWidth, 8}}};

  ui::Frame FrameCache{
      Window,
      {.name = "FrameCache", .caption = "Disk Cache ([vcache] of system.ini)", .place = {7, 48, 249, 50}}};
  EntryRow MinFileCache{FrameCache,
                        {"chkMinFileCache", "lblMinFileCacheBefore", "lblMinFileCacheNow", "MinFileCache",
                         'M', "Minimum size of the disk cache in KB", 59}};
  EntryRow MaxFileCache{FrameCache,
                        {"chkMaxFileCache", "lblMaxFileCacheBefore", "lblMaxFileCacheNow", "MaxFileCache",
                         'x', "Maximum size of the disk cache in KB", 71}};
  EntryRow ChunkSize{FrameCache,
                     {"chkChunkSize", "lblChunkSizeBefore", "lblChunkSizeNow", "ChunkSize", 'k',
                      "Number of KB that the disk cache reads at once", 83}};

  ui::Frame FrameTemplate{
      Window, {.name = "FrameTemplate", .caption = "File System Template", .place = {7, 102, 249, 26}}};
  EntryRow Template{FrameTemplate,
                    {"chkTemplate", "lblTemplateBefore", "lblTemplateNow", "Template in force", 'T',
                     "Sets how many file and folder names Windows remembers", 113}};

  ui::Frame FrameSwapFile{
      Window,
      {.name = "FrameSwapFile", .caption = "Swap File ([386Enh] of system.ini)", .place = {7, 132, 249, 62}}};
  EntryRow PagingDrive{FrameSwapFile,
                       {"chkPagingDrive", "lblPagingDriveBefore", "lblPagingDriveNow", "PagingDrive", 'D',
                        "Drive of the swap file", 143}};
  EntryRow MinPagingFileSize{FrameSwapFile,
                             {"chkMinPagingFileSize", "lblMinPagingFileSizeBefore", "lblMinPagingFileSizeNow",
                              "MinPagingFileSize", 'n', "Minimum size of the swap file in KB", 155}};
  EntryRow MaxPagingFileSize{FrameSwapFile,
                             {"chkMaxPagingFileSize", "lblMaxPagingFileSizeBefore", "lblMaxPagingFileSizeNow",
                              "MaxPagingFileSize", 'a', "Maximum size of the swap file in KB", 167}};
  EntryRow Paging{FrameSwapFile,
                  {"chkPaging", "lblPagingBefore", "lblPagingNow", "Paging", 'g',
                   "Whether Windows uses a swap file", 179}};

  /// Whether there is a usable copy of system.ini, and its date.
  ui::Label lblBackup{Window, {.name = "lblBackup", .place = {7, 200, 249, 24}}};

  ui::Button cmdPutBack{Window,
                        {.name = "cmdPutBack",
                         .caption = "Put Back",
                         .tool_tip = "Give the ticked settings their old values, or remove them",
                         .place = {63, 235, 56, 14},
                         .access_key = 'P',
                         .enabled = false},
                        ui::ButtonRole::kDefault};
  ui::Button cmdRestore{Window,
                        {.name = "cmdRestore",
                         .caption = "Restore Whole File...",
                         .tool_tip = "Replace all of system.ini with system.qdix",
                         .place = {123, 235, 80, 14},
                         .access_key = 'R',
                         .enabled = false}};
  ui::Button cmdClose{
      Window,
      {.name = "cmdClose", .caption = "Close", .place = {207, 235, 49, 14}, .access_key = 'C'},
      ui::ButtonRole::kCancel};

  /// In the order of kEntries.
  [[nodiscard]] std::array<EntryRow*, 8> Rows() {
    return {&MinFileCache, &MaxFileCache,      &ChunkSize,         &Template,
            &PagingDrive,  &MinPagingFileSize, &MaxPagingFileSize, &Paging};
  }
};

}  // namespace qdix::undo
