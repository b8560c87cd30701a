#include "config_launcher/browse.h"

#include "config_launcher/entry_text.h"
#include "config_launcher/picked_files.h"

namespace qdix::config_launcher {

namespace {

constexpr const char* kFilter = "Programs\0*.exe;*.com;*.bat;*.pif;*.lnk\0";

}  // namespace

Browse::Browse(const ConfigSystem& system, os::FileDialogs& dialogs, ConfigScreen& screen, EditorBoxes& boxes,
               EntryList& entry_list)
    : system_(system), dialogs_(dialogs), screen_(screen), boxes_(boxes), entry_list_(entry_list) {
  screen_.cmdBrowsePath.OnClick = ui::Handler::To<&Browse::cmdBrowsePath_Click>(*this);
  screen_.cmdBrowseStartIn.OnClick = ui::Handler::To<&Browse::cmdBrowseStartIn_Click>(*this);
}

base::Status Browse::cmdBrowsePath_Click() {
  std::string path;
  {
    const EditorBoxes::Opened opened(boxes_);
    path = dialogs_.GetOpenFileNameA(
        {.title = "Browse", .filter = kFilter, .folder = FolderText(screen_.txtStartIn.Text())});
  }
  if (path.empty() || screen_.Window.Unloaded()) return base::kDone;
  PickedFiles picked(system_);
  const std::optional<launcher::LauncherEntry> entry = picked.EntryOf(path);
  if (entry) entry_list_.StartNew(*entry);
  picked.Report(boxes_);
  return base::kDone;
}

base::Status Browse::cmdBrowseStartIn_Click() {
  std::string folder;
  {
    const EditorBoxes::Opened opened(boxes_);
    folder = dialogs_.SHBrowseForFolderA("Start the program in this folder:",
                                         FolderText(screen_.txtStartIn.Text()));
  }
  if (folder.empty() || screen_.Window.Unloaded()) return base::kDone;
  if (folder.size() > launcher::kStartInWidth) {
    boxes_.Show("This path is too long. The list takes paths of 255 characters at most.");
    return base::kDone;
  }
  screen_.txtStartIn.SetText(folder);
  return base::kDone;
}

}  // namespace qdix::config_launcher
