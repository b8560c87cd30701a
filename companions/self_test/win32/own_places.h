// The key and the folder of a run, and their removal with everything in them.
#pragma once

#include <string>

#include "self_test/outcome.h"
#include "self_test/private_system.h"

namespace qdix::self_test::win32 {

/// The user's folder for temporary files, with a backslash at its end; empty where none is named.
[[nodiscard]] std::string TemporaryFolder();

class OwnPlacesKeeper {
 public:
  /// Takes away what an interrupted run left, and makes the folder; the key is made by whoever writes to it.
  OwnPlacesKeeper();

  [[nodiscard]] const OwnPlaces& Places() const { return places_; }
  /// Failed where there is no such folder.
  [[nodiscard]] Outcome AreMade() const;
  /// Takes away key and folder, and the key above ours where there was none before.
  [[nodiscard]] Outcome Remove() const;

 private:
  const OwnPlaces places_;
  const bool settings_existed_;
  bool is_made_ = false;
};

}  // namespace qdix::self_test::win32
