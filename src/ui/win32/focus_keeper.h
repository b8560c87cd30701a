// Keeps the native keyboard focus and the model's focus on the same control. The model decides: a control may
// refuse to lose the focus, and then the native focus goes back to it.
#pragma once

#include <windows.h>

#include "ui/form.h"

namespace qdix::ui::win32 {

class NativeControl;
class PeerTable;

class FocusKeeper {
 public:
  /// Posted to the main window after a refusal; arrives when the input that caused it has been handled. Above
  /// the message numbers that dialogs use.
  static constexpr UINT kRefusalSettledMessage = WM_USER + 0x101;

  FocusKeeper(Form& form, PeerTable& peers) : form_(form), peers_(peers) {}

  void SetMainWindow(HWND main) { main_ = main; }

  /// The user or Windows moved the native focus to a control.
  void Arrived(NativeControl& peer);
  /// The model's focus moved, or was confirmed where it was.
  void FollowModel();
  /// A control with the native focus is about to be disabled or hidden. The main window holds the keyboard
  /// for it.
  void Leaving(NativeControl& peer);
  /// A control was enabled or shown. Gives it the keyboard back if the main window still holds it for this
  /// control.
  void Returned(NativeControl& peer);
  /// The main window itself got the native focus, for example on activation. Passes it to the control that
  /// should have it.
  void ArrivedAtMain();

  /// Returns true once for the click that came with a refused focus move. The caller must ignore that click.
  [[nodiscard]] bool TakeRefusal(const NativeControl& peer);
  void OnRefusalSettled();

 private:
  void Refuse(NativeControl& peer);
  void Give(NativeControl& peer) const;

  Form& form_;
  PeerTable& peers_;
  HWND main_ = nullptr;
  NativeControl* refused_ = nullptr;
  NativeControl* waiting_ = nullptr;
  bool moving_ = false;
  bool parking_ = false;
};

}  // namespace qdix::ui::win32
