// Files that the user picked or dropped, as entries of the list; and the message about what could not be
// taken over.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "config_launcher/boxes.h"
#include "launcher/launcher_file.h"
#include "os/system.h"

namespace qdix::config_launcher {

class PickedFiles {
 public:
  explicit PickedFiles(const os::System& system) : system_(system) {}

  /// The entry of a program, or of what a shortcut to a program starts; its folder is left out if the
  /// launcher cannot use it. Nothing for any other file, for a folder, and for what a record cannot hold.
  [[nodiscard]] std::optional<launcher::LauncherEntry> EntryOf(const std::string& path);

  /// Names what gave no entry, and what lost its folder.
  void Report(Boxes& boxes) const;

 private:
  /// Lines of a message, of which no more are shown than fit on a screen of 640 x 480.
  class Lines {
   public:
    void Add(const std::string& line);
    [[nodiscard]] bool Empty() const { return count_ == 0; }
    [[nodiscard]] std::string Text() const;

   private:
    std::string text_;
    std::int32_t count_ = 0;
  };

  [[nodiscard]] std::optional<launcher::LauncherEntry> WholeEntryOf(const std::string& path) const;
  [[nodiscard]] bool CanBeStarted(const std::string& path) const;

  const os::System& system_;
  Lines refused_;
  Lines without_folder_;
};

}  // namespace qdix::config_launcher
