// The user's printer: chosen in the system's dialog, then written to page by page. The dialog belongs to the
// main window and lets timers and other handlers run while it is open.
#pragma once

#include <string>

#include "os/text_device.h"

namespace qdix::os {

/// What can be printed on of one page, and the resolution.
struct PrinterPage {
  int width_px = 0;
  int height_px = 0;
  int dots_an_inch = 0;
};

class Printer {
 public:
  enum class Choice : unsigned char {
    kPrint,
    kCancelled,
    /// There is no printer, or the system cannot open it. It has not told the user.
    kFailed,
  };

  virtual ~Printer() = default;

  /// Lets the user choose a printer. Only after kPrint the other calls may be made; DeleteDC ends that.
  [[nodiscard]] virtual Choice PrintDlgA() = 0;
  virtual void DeleteDC() = 0;

  [[nodiscard]] virtual PrinterPage GetDeviceCaps() = 0;
  /// Measures at any time; draws on the page that was started.
  [[nodiscard]] virtual TextDevice& Device() = 0;

  /// Each is false where the printer refuses; the document is then given up with AbortDoc.
  [[nodiscard]] virtual bool StartDocA(const std::string& title) = 0;
  [[nodiscard]] virtual bool StartPage() = 0;
  [[nodiscard]] virtual bool EndPage() = 0;
  [[nodiscard]] virtual bool EndDoc() = 0;
  virtual void AbortDoc() = 0;
};

}  // namespace qdix::os
