#include "config_launcher/browse.h"

#include "config_launcher/entry_text.h"

namespace qdix::config_launcher {

namespace {

constexpr const char* kFilter =
    "Programs\0*.exe;*.com;*.bat;*.pif;*.lnk\0"
    "All files\0*.*\0";
constexpr const char* kTooLong = "This path is too long for the list, which takes 255 characters.";

}  // namespace

Browse::Browse(os::FileDialogs& dialogs, ConfigScreen& screen, Boxes& boxes)
    : dialogs_(dialogs), screen_(screen), boxes_(boxes) {
  screen_.cmdBrowsePath.OnClick = ui::Handler::To<&Browse::cmdBrowsePath_Click>(*this);
  screen_.cmdBrowseStartIn.OnClick = ui::Handler::To<&Browse::cmdBrowseStartIn_Click>(*this);
}

base::Status Browse::cmdBrowsePath_Click() {
  std::string path;
  {
    const Boxes::Opened opened(boxes_);
    path = dialogs_.GetOpenFileNameA(
        {.title = "Browse", .filter = kFilter, .folder = screen_.txtStartIn.Text()});
  }
  if (path.empty() || screen_.Window.Unloaded()) return base::kDone;
  const launcher::LauncherEntry entry = EntryOfFile(path);
  if (!Fits(entry)) {
    boxes_.Tell(kTooLong);
    return base::kDone;
  }
  screen_.txtPath.SetText(entry.path);
  if (screen_.txtName.Text().empty()) screen_.txtName.SetText(entry.name);
  if (screen_.txtStartIn.Text().empty()) screen_.txtStartIn.SetText(entry.start_in);
  return base::kDone;
}

base::Status Browse::cmdBrowseStartIn_Click() {
  std::string folder;
  {
    const Boxes::Opened opened(boxes_);
    folder = dialogs_.SHBrowseForFolderA("Start the program in this folder:", screen_.txtStartIn.Text());
  }
  if (folder.empty() || screen_.Window.Unloaded()) return base::kDone;
  if (folder.size() > launcher::kStartInWidth) {
    boxes_.Tell(kTooLong);
    return base::kDone;
  }
  screen_.txtStartIn.SetText(folder);
  return base::kDone;
}

}  // namespace qdix::config_launcher
