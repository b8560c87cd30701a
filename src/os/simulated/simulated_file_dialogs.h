// The file and folder dialogs of the simulated machine. A test sets in advance what the user picks.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "os/file_dialogs.h"

namespace qdix::os::simulated {

class SimulatedFileDialogs final : public FileDialogs {
 public:
  std::string GetOpenFileNameA(const OpenFileRequest& question) override {
    return Show("GetOpenFileNameA", question.folder);
  }
  std::string SHBrowseForFolderA(const std::string& /*title*/, const std::string& folder) override {
    return Show("SHBrowseForFolderA", folder);
  }

  /// Sets what the user picks in the next dialogs, in order. An empty path means Cancel, and so does a
  /// missing one.
  void PickNext(const std::string& path) { picks_.push_back(path); }
  void WhileOpen(std::function<void()> action) { while_open_ = std::move(action); }
  /// Returns the dialogs that were shown, each with its initial folder.
  [[nodiscard]] const std::vector<std::string>& Shown() const { return shown_; }

 private:
  std::string Show(const std::string& name, const std::string& folder) {
    shown_.push_back(name + "(" + folder + ")");
    if (while_open_) while_open_();
    if (picks_.empty()) return {};
    std::string pick = picks_.front();
    picks_.erase(picks_.begin());
    return pick;
  }

  std::vector<std::string> picks_;
  std::vector<std::string> shown_;
  std::function<void()> while_open_;
};

}  // namespace qdix::os::simulated
