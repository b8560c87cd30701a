// Keeps the native keyboard focus and the model's focus on the same control. The model decides: a control
// that is left may keep the focus, and then the native focus goes back to it.
#pragma once

#include <windows.h>

#include "ui/form.h"

namespace qdix::ui::win32 {

class NativeControl;
class PeerTable;

class FocusKeeper {
 public:
  /// Sent to the main window after a refusal, when the input that caused it has been handled. Above the
  /// numbers that dialogs use themselves.
  static constexpr UINT kRefusalSettledMessage = WM_USER + 0x101;

  FocusKeeper(Form& form, PeerTable& peers) : form_(form), peers_(peers) {}

  void SetMainWindow(HWND main) { main_ = main; }

  /// The native focus came to a control by the user's hand or by the system.
  void Arrived(NativeControl& peer);
  /// The model's focus moved, or was confirmed where it was.
  void FollowModel();
  /// A control that has the native focus is about to be disabled or hidden: the main window holds the
  /// keyboard for it meanwhile.
  void Leaving(NativeControl& peer);
  /// A control was enabled or shown: takes the keyboard back if the main window still holds it for it.
  void Returned(NativeControl& peer);
  /// The main window itself got the native focus, as after an activation: hands it on to the control that
  /// should have it.
  void ArrivedAtMain();

  /// True once for the click that comes with a focus move that was refused: the click is void, too.
  [[nodiscard]] bool TakeRefusal(const NativeControl& peer);
  void RefusalSettled();

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
