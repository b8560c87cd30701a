// Makes the private key and folder of a run, and removes them with everything in them.
#pragma once

#include <string>

#include "self_test/outcome.h"
#include "self_test/private_system.h"

namespace qdix::self_test::win32 {

/// Returns the user's folder for temporary files, with a backslash at the end; empty if there is none.
[[nodiscard]] std::string TemporaryFolder();

class OwnPlacesKeeper {
 public:
  /// Removes what an interrupted run left behind and makes the folder. The key is made by the first write to
  /// it.
  OwnPlacesKeeper();

  [[nodiscard]] const OwnPlaces& Places() const { return places_; }
  /// Returns a failure if the folder does not exist.
  [[nodiscard]] Outcome WereCreated() const;
  /// Removes the key and the folder, and also the parent key if it did not exist before.
  [[nodiscard]] Outcome Remove() const;

 private:
  const OwnPlaces places_;
  const bool settings_existed_;
  bool is_made_ = false;
};

}  // namespace qdix::self_test::win32
