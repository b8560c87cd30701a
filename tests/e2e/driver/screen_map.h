// Where the controls of a shipped program are: number and tab by name, taken from the same screen tables that
// the program uses.
#pragma once

#include <string>
#include <vector>

#include "ui/control.h"

namespace qdix::e2e {

struct ControlAddress {
  std::string name;
  int number = 0;
  /// Index of the control's tab, or -1 if it is on no tab.
  int tab = -1;
};

class ScreenMap {
 public:
  explicit ScreenMap(const ui::Container& window);

  /// Returns the controls in the order of the screens.
  [[nodiscard]] const std::vector<ControlAddress>& All() const { return controls_; }
  /// Returns null if no control has this name or number.
  [[nodiscard]] const ControlAddress* Find(const std::string& name) const;
  [[nodiscard]] const ControlAddress* Find(int number) const;

 private:
  std::vector<ControlAddress> controls_;
};

}  // namespace qdix::e2e
