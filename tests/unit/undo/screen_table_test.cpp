// The window of Q-DIX Undo, complete: kinds, names, captions with their access keys, tool tips, frames, tab
// order.
#include <gtest/gtest.h>

#include "tests/support/screen_text.h"
#include "undo/undo_screen.h"

namespace qdix::tests {
namespace {

constexpr const char* kControls =
    R"--(Label lblState ''
Label lblEntry 'Setting'
Label lblBefore 'Before'
Label lblNow 'Now'
Frame FrameCache 'Disk Cache ([vcache] of system.ini)'
  CheckBox chkMinFileCache '&MinFileCache' (Minimum size of the disk cache in KB) disabled
  Label lblMinFileCacheBefore ''
  Label lblMinFileCacheNow ''
  CheckBox chkMaxFileCache 'Ma&xFileCache' (Maximum size of the disk cache in KB) disabled
  Label lblMaxFileCacheBefore ''
  Label lblMaxFileCacheNow ''
  CheckBox chkChunkSize 'Chun&kSize' (Number of KB that the disk cache reads at once) disabled
  Label lblChunkSizeBefore ''
  Label lblChunkSizeNow ''
Frame FrameTemplate 'File System Template'
  CheckBox chkTemplate '&Template in force' (Sets how many file and folder names Windows remembers) disabled
  Label lblTemplateBefore ''
  Label lblTemplateNow ''
Frame FrameSwapFile 'Swap File ([386Enh] of system.ini)'
  CheckBox chkPagingDrive 'Paging&Drive' (Drive of the swap file) disabled
  Label lblPagingDriveBefore ''
  Label lblPagingDriveNow ''
  CheckBox chkMinPagingFileSize 'Mi&nPagingFileSize' (Minimum size of the swap file in KB) disabled
  Label lblMinPagingFileSizeBefore ''
  Label lblMinPagingFileSizeNow ''
  CheckBox chkMaxPagingFileSize 'M&axPagingFileSize' (Maximum size of the swap file in KB) disabled
  Label lblMaxPagingFileSizeBefore ''
  Label lblMaxPagingFileSizeNow ''
  CheckBox chkPaging 'Pa&ging' (Whether Windows uses a swap file) disabled
  Label lblPagingBefore ''
  Label lblPagingNow ''
Label lblBackup ''
Button cmdPutBack '&Put Back' (Give the ticked settings their old values, or remove them) default disabled
Button cmdRestore '&Restore Whole File...' (Replace all of system.ini with system.qdix) disabled
Button cmdClose '&Close' cancel
)--";

TEST(UndoTable, HoldsExactlyTheseControls) {
  ui::EventDispatcher events;
  const undo::UndoScreen screen{events};
  EXPECT_EQ(screen.Window.Caption(), "Q-DIX Undo");
  EXPECT_EQ(ScreenText(screen.Window), kControls);
}

}  // namespace
}  // namespace qdix::tests
