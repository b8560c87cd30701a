// The base of all peers: one native window that mirrors one control model. A peer copies between the two and
// contains no rules.
#pragma once

#include <string>

#include "ui/control.h"
#include "ui/win32/colours.h"
#include "ui/win32/dialog_font.h"
#include "ui/win32/subclass.h"

namespace qdix::ui::win32 {

class FocusKeeper;
class FormKeys;
class PeerMaker;
class PeerTable;
class ToolTips;

/// What the peers of one form share. Must outlive them.
struct PeerContext {
  HINSTANCE instance;
  const DialogFont& font;
  FormKeys& keys;
  PeerTable& peers;
  FocusKeeper& focus;
  ToolTips& tips;
  const PeerMaker& maker;
};

/// How to make the native window of a control.
struct NativeDesign {
  const char* window_class = nullptr;
  std::string text{};
  DWORD style = 0;
  DWORD extended_style = 0;
  PixelBox box{};
};

class NativeControl : public ControlPeer, private MessageHandler {
 public:
  NativeControl(const NativeControl&) = delete;
  NativeControl& operator=(const NativeControl&) = delete;
  virtual ~NativeControl();

  /// Null if Windows could not make the window.
  [[nodiscard]] HWND Window() const { return window_; }
  [[nodiscard]] Control& Model() const { return model_; }
  /// True if the native keyboard focus is on the window or inside it.
  [[nodiscard]] bool OwnsNativeFocus() const;
  /// True if the window can take the keyboard now.
  [[nodiscard]] bool Usable() const;

  /// Notifications of the native window: a WM_COMMAND code, a WM_NOTIFY code, a scroll code.
  virtual void OnCommand(UINT /*code*/) {}
  virtual void OnNotify(UINT /*code*/) {}
  virtual void OnScroll(UINT /*code*/) {}
  /// Draws an owner-drawn window.
  virtual void OnDrawItem(const DRAWITEMSTRUCT& /*item*/) {}
  /// Sets the colours for a WM_CTLCOLOR... message and returns the background brush. Null leaves the colours
  /// to Windows.
  virtual HBRUSH Paint(UINT message, HDC device);

  /// Shows or enables the window according to the model and all containers above it.
  void RefreshVisible();
  void RefreshEnabled();

  void ControlChanged(Control& control, Change change) override;

 protected:
  /// Makes the window on `parent` with the text and style of the design, in the dialog font, shown and
  /// enabled as the model says. A peer may be made at any time in its model's life, so each peer's
  /// constructor copies everything that the window shows.
  NativeControl(const PeerContext& context, Control& model, HWND parent, int number,
                const NativeDesign& design);

  [[nodiscard]] const PeerContext& Context() const { return context_; }
  LRESULT Send(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const;
  LRESULT HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  LRESULT Default(UINT message, WPARAM wparam, LPARAM lparam);

  /// False for a control that only passes the focus on, for example a label: the dialog manager then moves to
  /// the next control.
  [[nodiscard]] virtual bool TakesKeyboard() const { return true; }
  /// Returns the window text for the model's caption.
  [[nodiscard]] std::string NativeCaption() const;
  virtual void ValueChanged() {}
  virtual void ItemsChanged() {}
  virtual void RangeChanged() {}
  virtual void TextSelectionChanged() {}
  virtual void PixelsChanged() {}
  virtual void BorderChanged() {}
  virtual void CaptionChanged();

 private:
  void FocusChanged();
  void PlaceChanged();

  const PeerContext& context_;
  Control& model_;
  HWND window_;
  Subclass hook_;
  BackgroundBrush background_;
};

}  // namespace qdix::ui::win32
