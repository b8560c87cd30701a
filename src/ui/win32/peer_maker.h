// Makes the windows of a form's controls when they are needed: those on a tab page when the page is first
// shown, all others at once. On Windows 95, 98 and ME the windows of all programs share 64 KB, so windows
// that the user does not see are not made.
#pragma once

#include "ui/form.h"
#include "ui/tab_strip.h"
#include "ui/win32/peer_factory.h"

namespace qdix::ui::win32 {

class PeerMaker {
 public:
  /// Form, window and context must outlive this object. The context may be constructed after it.
  PeerMaker(Form& form, HWND main, PeerFactory make_peer, const PeerContext& context)
      : form_(form), main_(main), make_peer_(make_peer), context_(context) {}

  /// Makes the windows that are needed now and do not exist yet: controls on no page, on a page with a
  /// drawing (whose picture lives in its window), or on the open page of a shown form. A peer copies
  /// everything it shows from its model, so it may be made late. Leaves out a window that Windows cannot make
  /// and tries again next time.
  void MakeDue() const;

  /// True if every window that is needed now exists.
  [[nodiscard]] bool Complete() const;

 private:
  [[nodiscard]] bool IsDue(const Control& control) const;
  [[nodiscard]] bool Make(Control& control, int number) const;
  [[nodiscard]] HWND ParentWindowOf(const Control& control) const;

  Form& form_;
  HWND main_;
  PeerFactory make_peer_;
  const PeerContext& context_;
};

}  // namespace qdix::ui::win32
