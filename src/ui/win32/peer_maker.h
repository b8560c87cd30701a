// Makes the windows of a form's controls when they are needed: those of a tab page when the page is to be
// seen for the first time, all others at once. On Windows 95, 98 and ME the windows of all programs share
// 64 KB, so what nobody looks at should not be there.
#pragma once

#include "ui/form.h"
#include "ui/tab_strip.h"
#include "ui/win32/peer_factory.h"

namespace qdix::ui::win32 {

class PeerMaker {
 public:
  /// Form, window and context must outlive this object; the context may be put together after it.
  PeerMaker(Form& form, HWND main, PeerFactory make_peer, const PeerContext& context)
      : form_(form), main_(main), make_peer_(make_peer), context_(context) {}

  /// Makes what is due and is not there yet: what stands on no page, on a page with a drawing (whose picture
  /// lives in its window), or on the open page of a form that is shown. A peer takes all it shows from its
  /// model, so it may come late. What the system cannot make is left out, and tried again the next time.
  void MakeDue() const;

  /// All that is due is there.
  [[nodiscard]] bool Complete() const;

 private:
  struct DueWindows;

  [[nodiscard]] bool IsDue(const Control& control) const;
  [[nodiscard]] bool Make(Control& control, int number) const;
  [[nodiscard]] HWND StandsOn(const Control& control) const;

  Form& form_;
  HWND main_;
  PeerFactory make_peer_;
  const PeerContext& context_;
};

}  // namespace qdix::ui::win32
