// Where the controls of a shipped program are: number and tab by name, taken from the same screens that the
// program is made of.
#pragma once

#include <string>
#include <vector>

#include "ui/control.h"

namespace qdix::e2e {

struct ControlAddress {
  std::string name;
  int number = 0;
  /// Index of the tab it stands on, or -1 for what stands on no tab.
  int tab = -1;
};

class ScreenMap {
 public:
  explicit ScreenMap(const ui::Container& window);

  /// In the order of the screens.
  [[nodiscard]] const std::vector<ControlAddress>& All() const { return controls_; }
  /// Null where no control has this name or number.
  [[nodiscard]] const ControlAddress* Find(const std::string& name) const;
  [[nodiscard]] const ControlAddress* Find(int number) const;

 private:
  std::vector<ControlAddress> controls_;
};

}  // namespace qdix::e2e
