// The user's printer: chosen in the system's dialog, then written page by page. The main window owns the
// dialog; timers and other handlers run while it is open.
#pragma once

#include <string>

#include "os/text_device.h"

namespace qdix::os {

/// The printable area of a page, and the resolution.
struct PrinterPage {
  int width_px = 0;
  int height_px = 0;
  int dots_per_inch = 0;
};

class Printer {
 public:
  enum class Choice : unsigned char {
    kPrint,
    kCancelled,
    /// There is no printer, or the system cannot open it. The system has shown no message.
    kFailed,
  };

  /// Lets the user choose a printer. The other functions may be called only after kPrint and until DeleteDC.
  [[nodiscard]] virtual Choice PrintDlgA() = 0;
  virtual void DeleteDC() = 0;

  [[nodiscard]] virtual PrinterPage GetDeviceCaps() = 0;
  /// Returns the device for text. It measures at any time, but draws only on a page that was started.
  [[nodiscard]] virtual TextDevice& Device() = 0;

  /// Each returns false if the printer refuses. The caller then abandons the document with AbortDoc.
  [[nodiscard]] virtual bool StartDocA(const std::string& title) = 0;
  [[nodiscard]] virtual bool StartPage() = 0;
  [[nodiscard]] virtual bool EndPage() = 0;
  [[nodiscard]] virtual bool EndDoc() = 0;
  virtual void AbortDoc() = 0;

 protected:
  ~Printer() = default;
};

}  // namespace qdix::os
