// A clipboard that keeps what was put on it, unless another program has it open.
#pragma once

#include "os/clipboard.h"

namespace qdix::os::simulated {

class SimulatedClipboard final : public Clipboard {
 public:
  bool SetClipboardData(const std::string& new_text) override {
    if (is_held) return false;
    text = new_text;
    return true;
  }

  std::string text;
  /// True while another program has it open.
  bool is_held = false;
};

}  // namespace qdix::os::simulated
