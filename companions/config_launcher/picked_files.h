// Converts files that the user picked or dropped to entries of the list, and reports the files that could not
// be used.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "config_launcher/config_system.h"
#include "config_launcher/editor_boxes.h"
#include "launcher/launcher_file.h"

namespace qdix::config_launcher {

class PickedFiles {
 public:
  explicit PickedFiles(const ConfigSystem& system) : system_(system) {}

  /// Returns the entry for a program or for the program that a shortcut starts, without a folder if the
  /// launcher cannot use it. Returns nothing for any other file, for a folder, and for texts that do not fit
  /// a record.
  [[nodiscard]] std::optional<launcher::LauncherEntry> EntryOf(const std::string& path);

  /// Reports the files without an entry and the entries without their folder.
  void Report(EditorBoxes& boxes) const;

 private:
  /// Lines of a message. Shows only as many as fit on a screen of 640 x 480.
  class Lines {
   public:
    void Add(const std::string& line);
    [[nodiscard]] bool Empty() const { return count_ == 0; }
    [[nodiscard]] std::string Text() const;

   private:
    std::string text_;
    std::int32_t count_ = 0;
  };

  [[nodiscard]] std::optional<launcher::LauncherEntry> CompleteEntryOf(const std::string& path) const;
  [[nodiscard]] bool CanBeStarted(const std::string& path) const;

  const ConfigSystem& system_;
  Lines refused_;
  Lines without_folder_;
};

}  // namespace qdix::config_launcher
